#include "common/system/WeatherFiles.h"

#include "common/html/DomText.h"

#include <QDebug>
#include <QDomDocument>
#include <QFile>

namespace {

constexpr int cNodesOfFirstMap = 4;

bool parseFile(QFile &file, QDomDocument &document)
{
    return DomText::parse(file.readAll(), document);
}

QMap<QString, QString> childTexts(const QDomNode &parent)
{
    QMap<QString, QString> mapText;
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
        mapText.insert(node.nodeName(), node.toElement().text());
    }
    return mapText;
}

} // namespace

QList<QMap<QString, QString>> WeatherFiles::parseWeatherXml(const QString &strPath)
{
    QList<QMap<QString, QString>> listResult;
    QFile file(strPath);
    if (!file.exists()) {
        return listResult;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "open file failure!";
        return listResult;
    }
    QDomDocument document;
    if (!parseFile(file, document)) {
        return listResult;
    }
    QMap<QString, QString> mapFirst;
    int iNode = 0;
    QDomNode node = document.documentElement().firstChild().firstChild();
    for (; !node.isNull(); node = node.nextSibling(), ++iNode) {
        if (iNode >= cNodesOfFirstMap) {
            listResult.append(childTexts(node));
            continue;
        }
        mapFirst.insert(node.nodeName(), node.toElement().text());
        if (iNode == cNodesOfFirstMap - 1) {
            listResult.append(mapFirst);
        }
    }
    return listResult;
}

QStringList WeatherFiles::parseCityXml()
{
    QStringList listName;
    QFile file(QStringLiteral("Resources/BaseConfig/ProvinceWeath.xml"));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !parseFile(file, document)) {
        return listName;
    }
    const QString strName = QStringLiteral("Name");
    const QDomElement root = document.documentElement();
    for (QDomElement place = root.firstChildElement(); !place.isNull(); place = place.nextSiblingElement()) {
        listName.append(place.attribute(strName));
        for (QDomElement city = place.firstChildElement(); !city.isNull(); city = city.nextSiblingElement()) {
            listName.append(city.attribute(strName));
        }
    }
    return listName;
}
