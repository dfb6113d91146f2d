#include "GalleryWindow.h"

#include "ui_GalleryWindow.h"

#include "GalleryPages.h"

#include <QScrollArea>

GalleryWindow::GalleryWindow(const GalleryPage *first, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::GalleryWindow>())
{
    ui->setupUi(this);
    for (const GalleryPage &page : GalleryPages::all()) {
        auto *scroll = new QScrollArea;
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidgetResizable(true);
        scroll->setWidget(page.create(scroll));
        const int index = ui->tabs->addTab(scroll, QString::fromLatin1(page.name));
        if (&page == first) {
            ui->tabs->setCurrentIndex(index);
        }
    }
}

GalleryWindow::~GalleryWindow() = default;
