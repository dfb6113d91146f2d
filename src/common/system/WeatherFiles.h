#pragma once

// The client's two weather files. Any thread; no state. A file of another shape gives what can be read of it, never an
// error.

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class WeatherFiles
{
public:
    /// The weather service's reply in a file. The first child of the document's element counts: its first four nodes
    /// make the first map, from node name to text, and each further node makes one of its own from its child nodes.
    /// With fewer than four nodes, or a file that is missing or does not parse, the list is empty.
    static QList<QMap<QString, QString>> parseWeatherXml(const QString &strPath);

    /// The names of all provinces and cities, each province before its cities, from
    /// "Resources/BaseConfig/ProvinceWeath.xml"; empty when that cannot be read.
    static QStringList parseCityXml();
};
