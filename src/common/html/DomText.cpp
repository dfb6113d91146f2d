#include "common/html/DomText.h"

#include <QDomDocument>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

// Qt builds the tree by these deprecated classes itself, so only they tell exactly how deep the tree will be.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

class DepthGuard : public QXmlDefaultHandler
{
public:
    bool startElement(const QString &, const QString &, const QString &, const QXmlAttributes &) override
    {
        return ++m_iDepth <= DomText::cDeepest;
    }

    bool endElement(const QString &, const QString &, const QString &) override
    {
        --m_iDepth;
        return true;
    }

    // Else a text with millions of short references to a long entity would fill the memory.
    bool internalEntityDecl(const QString &, const QString &strValue) override
    {
        return strValue.size() <= DomText::cLongestEntity && !strValue.contains(QLatin1Char('&'));
    }

private:
    int m_iDepth = 0;
};

template <typename Text>
bool parseGuarded(const Text &text, QDomDocument &document)
{
    document.clear();
    QXmlInputSource source;
    source.setData(text);
    DepthGuard guard;
    QXmlSimpleReader reader;
    reader.setContentHandler(&guard);
    reader.setErrorHandler(&guard);
    reader.setDeclHandler(&guard);
    return reader.parse(&source) && document.setContent(text);
}

} // namespace

bool DomText::parse(const QString &strText, QDomDocument &document)
{
    return parseGuarded(strText, document);
}

bool DomText::parse(const QByteArray &bytes, QDomDocument &document)
{
    return parseGuarded(bytes, document);
}
