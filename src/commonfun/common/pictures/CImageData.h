#pragma once

// What a message's HTML says of one of its images: the record under which the chat view fetches it. A plain value; any
// thread.

#include <QString>

struct CImageData
{
    /// The id of the stored file; empty when the element has none.
    QString m_strFileId;
    /// The image's place in its message.
    QString m_strSequence;
    /// The width in pixels, or the height when no width is told.
    QString m_strSize;
    /// Always empty here; it belongs to the host.
    QString m_strReserved;
};
