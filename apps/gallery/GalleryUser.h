#pragma once

// A signed-in user with a folder of its own, so that the gallery leaves nothing in anybody's home. GUI thread; in force
// while it lives.

#include "model/CommonData.h"
#include "model/LoginData.h"
#include "model/SystemSetData.h"

#include <QTemporaryDir>

class GalleryUser
{
public:
    GalleryUser();
    ~GalleryUser();
    GalleryUser(const GalleryUser &) = delete;
    GalleryUser &operator=(const GalleryUser &) = delete;

private:
    QTemporaryDir m_folder;
    LoginData m_login;
    SystemSetData m_settings;
    CommonData m_context;
};
