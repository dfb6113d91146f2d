#pragma once

// What a window makes of a text that somebody else has written: a name, an id, a signature. None may come to life as
// markup, as a style sheet or as the path of a picture that is loaded. GUI thread.

#include <QAbstractItemView>
#include <QLabel>
#include <QStringList>
#include <QTest>
#include <QTextDocument>
#include <QWidget>

namespace ForeignText {

/// Names that would do something if they were more than text, as rows of the column "name".
inline void addRows()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("bold") << QStringLiteral("<b>bold</b>");
    QTest::newRow("picture") << QStringLiteral("<img src=\"picture.png\">");
    QTest::newRow("picture from the network") << QStringLiteral("<img src='http://192.0.2.1/x.png'/>");
    QTest::newRow("link") << QStringLiteral("<a href=\"file:///etc/passwd\">me</a>");
    QTest::newRow("table of many rows") << QStringLiteral("<table>") + QStringLiteral("<tr><td>x").repeated(2000);
    QTest::newRow("style") << QStringLiteral("<style>*{color:red}</style>x");
    QTest::newRow("end of a style sheet") << QStringLiteral("x\"; } * { background: red; } #y { \"");
    QTest::newRow("picture in a style sheet") << QStringLiteral("x); image: url(picture.png");
    QTest::newRow("path") << QStringLiteral("../../../../etc/passwd");
    QTest::newRow("document") << QStringLiteral("<!DOCTYPE html><html><body>x</body></html>");
}

inline QString described(const QObject *pPart, const char *pWhat)
{
    return QString::fromLatin1(pPart->metaObject()->className()) + ' ' + pPart->objectName() + ": " + pWhat;
}

/// Every place below `root` where a text with `name` in it would be more than text; empty when there is none.
inline QStringList faults(const QWidget *root, const QString &name)
{
    QStringList found;
    QList<const QWidget *> parts{root};
    const QList<QWidget *> below = root->findChildren<QWidget *>();
    for (const QWidget *part : below) {
        parts.append(part);
    }
    const auto runs = [&](const QString &text) { return text.contains(name.left(20)) && Qt::mightBeRichText(text); };
    for (const QWidget *part : qAsConst(parts)) {
        if (runs(part->toolTip()) || runs(part->whatsThis())) {
            found += described(part, "tip");
        }
        if (part->styleSheet().contains(name.left(20))) {
            found += described(part, "style sheet");
        }
        const auto *label = qobject_cast<const QLabel *>(part);
        if (label && label->textFormat() != Qt::PlainText && runs(label->text())) {
            found += described(part, "label");
        }
        const auto *view = qobject_cast<const QAbstractItemView *>(part);
        const int rows = view && view->model() ? view->model()->rowCount() : 0;
        for (int cell = 0; cell < rows * (rows > 0 ? view->model()->columnCount() : 0); ++cell) {
            const QModelIndex index = view->model()->index(cell % rows, cell / rows);
            for (const int role : {Qt::ToolTipRole, Qt::WhatsThisRole}) {
                if (runs(index.data(role).toString())) {
                    found += described(part, "tip of a row");
                }
            }
        }
    }
    return found;
}

} // namespace ForeignText
