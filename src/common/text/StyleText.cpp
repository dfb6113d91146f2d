#include "common/text/StyleText.h"

#include <QFile>
#include <QTextStream>

QStringList StyleText::readStyleSheet(const QStringList &listFile)
{
    QStringList listText;
    for (const QString &strFile : listFile) {
        QFile file(strFile);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            return {QString()};
        }
        QTextStream stream(&file);
        stream.setCodec("GBK");
        listText.append(stream.readAll());
    }
    return listText;
}

QString StyleText::transformToRGBAStr(QString strColor)
{
    strColor.remove(QLatin1Char('#'));
    return QStringLiteral("%1,%2,%3")
        .arg(strColor.left(2).toUInt(nullptr, 16))
        .arg(strColor.mid(2, 2).toUInt(nullptr, 16))
        .arg(strColor.right(2).toUInt(nullptr, 16));
}
