#pragma once

// What the picture functions make, and the pictures that ship beside the executable. GUI thread; Qt's ownership by
// parent applies.

#include "Sheet.h"

class PicturesPage : public Sheet
{
    Q_OBJECT

public:
    /// The filled page. A watermark is made for the signed-in user. `parent` may be null.
    explicit PicturesPage(QWidget *parent = nullptr);

private:
    void addHeads();
    void addBubbles();
    void addAvatars();
    void addNamedPictures();
    void addWaterMark();
};
