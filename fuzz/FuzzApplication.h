#pragma once

// The application in which the targets run: windows on no screen, one microphone and no sound server, a home, a
// temporary directory and a working directory of its own, nobody at the other end of any socket, no output of Qt's.
// Build one at the start of main(). GUI thread.

#include <QApplication>
#include <QTemporaryDir>

#include <memory>

class FuzzApplication
{
public:
    /// `folder` is where the folders of its own are made; they go with it.
    explicit FuzzApplication(const QString &folder);
    ~FuzzApplication();
    FuzzApplication(const FuzzApplication &) = delete;
    FuzzApplication &operator=(const FuzzApplication &) = delete;

    /// Keeps Qt's messages quiet, also where something else has taken them over since; a fatal one is written.
    static void silenceQt();

private:
    QTemporaryDir m_box;
    std::unique_ptr<QApplication> m_application;
};
