#pragma once

// The link that an address in a message becomes.

#include <QString>

inline QString link(const QString &strUrl, const QString &strStyle = {})
{
    return "<a onfocus='this.blur()' href='web://urllink//" + strUrl + "' target='_blank' " + strStyle + ">" + strUrl +
           "</a>";
}
