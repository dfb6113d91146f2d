#pragma once

// The diagonal watermark behind the chat area. One picture per account and colour is kept on the disk.
// GUI thread; no state.

#include <QString>

class WaterMark
{
public:
    /// Sets `strPath` to the absolute path of the watermark of the signed-in account in the skin's colour, and makes
    /// the picture when there is no such file, with the user's name and, in brackets, the id, which may be empty. True
    /// when the file exists or was saved. `strName` and `strId` stay as they are.
    static bool generateWaterMark(QString &strName, QString &strId, QString &strPath);
};
