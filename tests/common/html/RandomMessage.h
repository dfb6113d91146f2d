#pragma once

// Messages put together at random from the pieces of ordinary ones, and from broken ones: for comparing a quick
// function with a slow and plain one. The same seed gives the same message.

#include <QRandomGenerator>
#include <QStringList>

class RandomMessage
{
public:
    explicit RandomMessage(quint32 iSeed) : m_random(iSeed) {}

    /// A whole document with paragraphs, spans and images, well-formed but for images that nothing closes or that name
    /// an attribute twice.
    QString document()
    {
        QString strBody;
        for (int i = below(5); i >= 0; --i) {
            strBody += "<p style=\"margin:0px\">" + runs() + "</p>" + pick({"", "\n", "<br/>"});
        }
        return "<html><head/><body" + pick({"", " style=\"font-size:14px\""}) + ">" + strBody + "</body></html>";
    }

    /// Any pieces in any order.
    QString scraps()
    {
        QString strText;
        for (int i = below(40); i > 0; --i) {
            strText += below(4) ? pick(cPieces) : runs();
        }
        return strText;
    }

private:
    int below(int iBound) { return int(m_random.bounded(quint32(iBound))); }
    QString pick(const QStringList &list) { return list.at(below(list.size())); }

    QString words()
    {
        QString strText;
        for (int i = below(6); i >= 0; --i) {
            strText += pick(cWords);
        }
        return strText;
    }

    QString image()
    {
        QString strTag = "<img";
        for (int i = below(6); i >= 0; --i) {
            strTag += " " + pick(cNames) + "=\"" + pick(cValues) + "\"";
        }
        return strTag + pick({"/>", " />", ">"});
    }

    QString runs()
    {
        QString strText;
        for (int i = below(4); i >= 0; --i) {
            switch (below(5)) {
            case 0:
                strText += "<span style=\"" + pick({"", "color:red;", "font-size:12px;"}) + "\">" + words() + "</span>";
                break;
            case 1:
                strText += "<span>" + words() + "</span>";
                break;
            case 2:
                strText += "<span><b>" + words() + "</b>" + pick({"", "  y"}) + "</span>";
                break;
            case 3:
                strText += image();
                break;
            default:
                strText += words();
            }
        }
        return strText;
    }

    static inline const QStringList cWords{"hello",       " ",           "  ",           "   ",
                                           "中文",        "&nbsp;",      "&nbsp;&nbsp;", "&lt;",
                                           "www.a.b",     "WWW.C.d/e?f", "http://x.y",   "HTTPS://z",
                                           "ftp://h/i#j", "www.",        "http:/",       "http://www.k.com&amp;m=1"};
    static inline const QStringList cNames{"src",      "type",       "style",     "name",  "fileid",
                                           "sequence", "trueheight", "truewidth", "x-src", "alt"};
    static inline const QStringList cValues{"",
                                            "a.png",
                                            "file:///d/e.png",
                                            "Emotion/1.gif",
                                            "downagain.png",
                                            "x/failed.png",
                                            "7",
                                            "http://q.r/s.jpg",
                                            "c d.png",
                                            "t&amp;u"};
    static inline const QStringList cPieces{"<",     ">",      "<p>",     "</p>",    "<body>", "</body>",  "<html>",
                                            "<img ", "\"",     "src=\"",  "type=\"", "/>",     "style=\"", "name=\"",
                                            "\n",    "<span>", "</span>", "<br>",    "&",      "=",        "fileid=\""};

    QRandomGenerator m_random;
};
