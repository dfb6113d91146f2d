#include "GalleryPages.h"

#include "DialogsPage.h"
#include "GlyphsPage.h"
#include "PicturesPage.h"
#include "WidgetsPage.h"

#include <QStringList>

#include <algorithm>

namespace {

template <typename Page>
QWidget *create(QWidget *parent)
{
    return new Page(parent);
}

} // namespace

const QVector<GalleryPage> &GalleryPages::all()
{
    static const QVector<GalleryPage> pages = {
        {"Widgets", create<WidgetsPage>},
        {"Glyphs", create<GlyphsPage>},
        {"Dialogs", create<DialogsPage>},
        {"Pictures", create<PicturesPage>},
    };
    return pages;
}

const GalleryPage *GalleryPages::find(const QString &strName)
{
    const auto found = std::find_if(all().begin(), all().end(), [&](const GalleryPage &page) {
        return strName.compare(QLatin1String(page.name), Qt::CaseInsensitive) == 0;
    });
    return found == all().end() ? nullptr : &*found;
}

QString GalleryPages::names()
{
    QStringList list;
    for (const GalleryPage &page : all()) {
        list.append(QString::fromLatin1(page.name));
    }
    return list.join(QStringLiteral(", "));
}
