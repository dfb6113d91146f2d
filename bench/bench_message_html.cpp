// A message's HTML on its way to the screen: links, plain text and image lists of ordinary messages and of hostile
// ones, beside one bare pass of the link pattern over the same text. All are to grow with the text and no faster.

#include "common/html/HtmlImages.h"
#include "common/html/HtmlLinks.h"
#include "common/html/MessageHtml.h"
#include "common/html/PlainText.h"

#include <QApplication>
#include <QRegExp>
#include <QTextDocument>

#include <benchmark/benchmark.h>

namespace {

constexpr int cShort = 1 << 10;
constexpr int cMiddle = 100 << 10;
constexpr int cLong = 1 << 20;

QString grown(const QString &piece, int size)
{
    return piece.repeated(size / piece.size() + 1);
}

QString message(const benchmark::State &state)
{
    const QString paragraph = "<p style=\"margin:0px\"><span style=\"font-size:14px;color:#333333\">See  the minutes, "
                              "www.kelvar.example/minutes?day=3&amp;part=2, as told 中文 yesterday, and the picture: "
                              "</span><img src=\"file:///data/pic/1.png\" type=\"picture\" style=\"width:20px\" "
                              "name=\"1.png\" fileid=\"f1\"/> thanks to all who have been there.</p>\n";
    return "<html><head/><body>" + grown(paragraph, int(state.range(0))) + "</body></html>";
}

QString hostileMessage(const benchmark::State &state)
{
    return "<html><body><p>" + grown("<img src=\"http://a ", int(state.range(0))) + "/></p></body></html>";
}

QString messageWithoutLinks(const benchmark::State &state)
{
    return message(state).replace("www.", "web ").replace("<img", "<i").replace("://", " ");
}

QString bottomlessMessage(const benchmark::State &state)
{
    return grown("<div><table><tr><td>", int(state.range(0))) + "x";
}

template <typename Work>
void measure(benchmark::State &state, const QString &text, Work work)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(work(text));
    }
    state.SetBytesProcessed(state.iterations() * text.size());
}

int matches(const QString &text)
{
    const QRegExp pattern("((http|https|ftp)://|(www)\\.)(\\w+)(\\.?[\\.a-z0-9/:?%&=\\-_+#;]*)", Qt::CaseInsensitive);
    int count = 0;
    for (int i = pattern.indexIn(text); i >= 0; i = pattern.indexIn(text, i + pattern.matchedLength())) {
        ++count;
    }
    return count;
}

QString linked(QString text)
{
    HtmlLinks::convertWebLink(text, {});
    return text;
}

QString shown(const QString &text)
{
    return MessageHtml::convertMessageBody(text, true);
}

QString plain(QString text)
{
    PlainText::convertToPlaintText(text);
    return text;
}

int images(const QString &text)
{
    return HtmlImages::getImageListFromHtml(text, {}, {}).size();
}

/// One pass of the pattern of an image, over all of the text.
int imageMatches(const QString &text)
{
    const QString attribute = "([^>]*)(src|type|style){1,1}=\"([^>]*)\"";
    QRegExp pattern("<img" + attribute + attribute + attribute + "[^>]*>");
    pattern.setMinimal(true);
    int count = 0;
    for (int i = pattern.indexIn(text); i >= 0; i = pattern.indexIn(text, i + pattern.matchedLength())) {
        ++count;
    }
    return count;
}

/// What the plain text is made of.
QString documentText(const QString &text)
{
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

int fileIds(const QString &text)
{
    return HtmlImages::getFileIdListFromHtml(text, {}, {}).size();
}

void barePatternPass(benchmark::State &state)
{
    measure(state, message(state), matches);
}
void barePatternPassWithoutLinks(benchmark::State &state)
{
    measure(state, messageWithoutLinks(state), matches);
}
void linksWithoutLinks(benchmark::State &state)
{
    measure(state, messageWithoutLinks(state), linked);
}
void bareImagePass(benchmark::State &state)
{
    measure(state, message(state), imageMatches);
}
void imageListWithoutImages(benchmark::State &state)
{
    measure(state, messageWithoutLinks(state), images);
}
void bareDocument(benchmark::State &state)
{
    measure(state, message(state), documentText);
}
void links(benchmark::State &state)
{
    measure(state, message(state), linked);
}
void wholeMessage(benchmark::State &state)
{
    measure(state, message(state), shown);
}
void plainText(benchmark::State &state)
{
    measure(state, message(state), plain);
}
void imageList(benchmark::State &state)
{
    measure(state, message(state), images);
}
void fileIdList(benchmark::State &state)
{
    measure(state, message(state), fileIds);
}
void barePatternPassHostile(benchmark::State &state)
{
    measure(state, hostileMessage(state), matches);
}
void linksHostile(benchmark::State &state)
{
    measure(state, hostileMessage(state), linked);
}
void plainTextBottomless(benchmark::State &state)
{
    measure(state, bottomlessMessage(state), plain);
}
void imageListHostile(benchmark::State &state)
{
    measure(state, hostileMessage(state), images);
}

BENCHMARK(barePatternPass)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(barePatternPassWithoutLinks)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(linksWithoutLinks)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(bareImagePass)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(imageListWithoutImages)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(bareDocument)->Arg(cShort)->Arg(cMiddle);
BENCHMARK(links)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(wholeMessage)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(plainText)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(imageList)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(fileIdList)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(barePatternPassHostile)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(linksHostile)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(plainTextBottomless)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);
BENCHMARK(imageListHostile)->Arg(cShort)->Arg(cMiddle)->Arg(cLong);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
