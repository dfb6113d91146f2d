#include "FuzzTargets.h"

#include "common/html/BoundedHtml.h"
#include "common/html/DomText.h"
#include "common/html/HtmlCost.h"
#include "common/html/HtmlImages.h"
#include "common/html/HtmlLinks.h"
#include "common/html/HtmlTags.h"
#include "common/html/HtmlText.h"
#include "common/html/MessageHtml.h"
#include "common/html/PlainText.h"
#include "common/text/LabelText.h"
#include "common/text/ShortText.h"
#include "common/text/TextMeasure.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/SystemSetData.h"

#include <QDomDocument>
#include <QFontMetrics>
#include <QLabel>

#include <iterator>
#include <string_view>

namespace {

void body(const QString &text)
{
    MessageHtml::convertMessageBody(text, text.size() % 2 == 0);
}

void links(const QString &text)
{
    QString linked = text;
    HtmlLinks::convertWebLink(linked, QStringLiteral("color:#000000"));
    requirePromise(linked.isEmpty() == text.isEmpty(), "links leave no text empty");
}

void plain(const QString &text)
{
    QString bare = text;
    PlainText::convertToPlaintText(bare);
}

void images(const QString &text)
{
    HtmlImages::getImageListFromHtml(text, QString(), QString());
    HtmlImages::getFileIdListFromHtml(text, QString(), QString());
}

void bounds(const QString &text)
{
    const QString lean = BoundedHtml::lean(text);
    const QString bare = BoundedHtml::bare(text);
    requirePromise(BoundedHtml::modest(text) == (lean.isNull() ? bare : lean),
                   "the lean form comes before the bare one");
    requirePromise(!BoundedHtml::lean(bare).isNull(), "the bare form never takes too long");
}

void tags(const QString &text)
{
    int position = 0;
    for (HtmlTag tag = HtmlTags::next(text, 0); tag.iBegin >= 0; tag = HtmlTags::next(text, position)) {
        requirePromise(tag.iBegin >= position && tag.iEnd > tag.iBegin && tag.iEnd <= text.size(),
                       "tags follow each other in the text");
        for (const HtmlAttribute &attribute : tag.listAttribute) {
            requirePromise(!attribute.strKey.isEmpty() && attribute.source.position() > tag.iBegin &&
                               attribute.source.position() + attribute.source.size() <= tag.iEnd,
                           "attributes stand in their tag");
        }
        position = tag.iEnd;
    }
}

void dom(const QString &text)
{
    QDomDocument document;
    if (!DomText::parse(text, document)) {
        requirePromise(document.isNull() || !document.hasChildNodes(), "what does not parse leaves nothing");
    }
    DomText::parse(text.toUtf8(), document);
    document.toString();
}

void entities(const QString &text)
{
    QString changed = text;
    HtmlText::replaceSpace(changed);
    HtmlText::replaceLineBreak(changed);
    HtmlText::replaceLineBreakToParagraph(changed);
    HtmlText::escapeURLChar(changed);
    const QString escaped = HtmlText::getDealWithHtmlText(text);
    requirePromise(!escaped.contains(QLatin1Char('<')), "escaped text has no tag");
    HtmlText::regainHtmlText(text);
}

void label(const QString &text)
{
    static QLabel s_label;
    s_label.setFixedWidth(40 + text.size() % 200);
    QString shown;
    LabelText::stringFormatWithControl(text, &s_label, shown, text.size() % 5);
    LabelText::getLineWrapText(60, text, s_label.fontMetrics(), text.size() % 4);
}

void shortened(const QString &text)
{
    const int columns = TextMeasure::getStrCounnt(text);
    for (const int limit : {-1, 0, 1, 7, columns, columns + 1}) {
        const QString cut = TextMeasure::getStringByLen(text, limit);
        requirePromise(text.startsWith(cut) && TextMeasure::getStrCounnt(cut) <= qMax(limit, 0),
                       "a cut text is a beginning within the limit");
        TextMeasure::getLimitPosition(text, limit);
        ShortText::getShortString(text, limit);
    }
    ShortText::getElidedText(text);
}

constexpr void (*cReaders[])(const QString &text) = {body, links, plain,    images, bounds,
                                                     tags, dom,   entities, label,  shortened};

// The limit is what the system itself grants a text of that length, estimated, and some for the rest: nothing that it
// takes for quick enough may count as a hang. What grew with the square of the depth took longer than that.
constexpr bool hasTimeForWhatIsGranted()
{
    for (const FuzzTarget &target : cFuzzTargets) {
        if (std::string_view(target.name) == "html") {
            return target.hangMs * 1000 > HtmlCost::mostMicroseconds(target.longest);
        }
    }
    return false;
}
static_assert(hasTimeForWhatIsGranted());

} // namespace

// The first byte says which of the readers gets the rest.
void FuzzTargets::html(const QByteArray &input)
{
    static CommonData s_context;
    static SystemSetData s_settings;
    s_context.setSystemSetData(&s_settings);
    const GivenContext given(s_context);

    if (input.isEmpty()) {
        return;
    }
    const auto reader = uchar(input.at(0)) % std::size(cReaders);
    cReaders[reader](QString::fromUtf8(input.mid(1)));
}
