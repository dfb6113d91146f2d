#pragma once

// The gallery's window: one tab for each page. GUI thread; Qt's ownership by parent applies.

#include <QWidget>

#include <memory>

struct GalleryPage;
namespace Ui {
class GalleryWindow;
}

class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    /// A window with all pages; `first` is the one that is shown, null the first. `parent` may be null.
    explicit GalleryWindow(const GalleryPage *first, QWidget *parent = nullptr);
    ~GalleryWindow() override;

private:
    std::unique_ptr<Ui::GalleryWindow> ui;
};
