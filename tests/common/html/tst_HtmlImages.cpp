#include "common/html/HtmlImages.h"
#include "common/html/RandomMessage.h"
#include "fakes/GivenContext.h"
#include "model/CommonData.h"
#include "model/SystemSetData.h"

#include <QDomDocument>
#include <QRegExp>
#include <QTest>

#include <optional>

namespace {

const QString cFolder = "/data/u1";

QString inBody(const QString &strHtml)
{
    return "<html><body>" + strHtml + "</body></html>";
}

QStringList paths(const QString &strHtml)
{
    return HtmlImages::getImageListFromHtml(strHtml, {}, {});
}

QMap<QString, CImageData> records(const QString &strHtml)
{
    return HtmlImages::getFileIdListFromHtml(strHtml, {}, {});
}

// The image elements, found by one pattern after the other, each match cut from a copy.
QList<QDomElement> imagesStepByStep(QString strHtml, const QString &strPattern)
{
    QList<QDomElement> listImage;
    QRegExp body("<body(.*)*</body>");
    QRegExp image(strPattern);
    image.setMinimal(true);
    for (int i = body.indexIn(strHtml); i >= 0; i = body.indexIn(strHtml)) {
        QString strBody = body.cap(0);
        strHtml.remove(i, body.matchedLength());
        for (int k = image.indexIn(strBody); k >= 0; k = image.indexIn(strBody)) {
            QDomDocument document;
            if (document.setContent(image.cap(0)) && !document.firstChildElement("img").isNull()) {
                listImage.append(document.firstChildElement("img"));
            }
            strBody.remove(0, k + image.matchedLength());
        }
    }
    return listImage;
}

QStringList pathsStepByStep(const QString &strHtml)
{
    QStringList listPath;
    const QString strPattern = "<img([^>]*)(src|type|style){1,1}=\"([^>]*)\"([^>]*)(src|type|style){1,1}=\"([^>]*)\""
                               "([^>]*)(src|type|style){1,1}=\"([^>]*)\"[^>]*>";
    for (const QDomElement &image : imagesStepByStep(strHtml, strPattern)) {
        const QString strSrc = image.attribute("src");
        if (!strSrc.isEmpty() && !strSrc.contains("Emotion") && !strSrc.contains("failed.png") &&
            !strSrc.contains("downagain.png")) {
            listPath.append(cFolder + "/picRec/" + strSrc.mid(strSrc.lastIndexOf('/') + 1));
        }
    }
    return listPath;
}

QStringList namesStepByStep(const QString &strHtml)
{
    QStringList listName;
    const QString strPattern = "<img([^>]*)(src|name|fileid){1,1}=\"([^>]*)\"([^>]*)(src|name|fileid){1,1}=\"([^>]*)\""
                               "([^>]*)(src|name|fileid){1,1}=\"([^>]*)\"[^>]*>";
    for (const QDomElement &image : imagesStepByStep(strHtml, strPattern)) {
        if (!image.attribute("name").contains("downagain.png")) {
            listName.append(image.attribute("name").remove("file:///"));
        }
    }
    listName.removeDuplicates();
    listName.sort();
    return listName;
}

} // namespace

class tst_HtmlImages : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        SystemSetData::instance()->m_strUserFolder = cFolder;
        m_context.setSystemSetData(SystemSetData::instance());
        m_given.emplace(m_context);
    }
    void cleanup() { m_given.reset(); }

    void imagesAreListedByTheirFiles_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QStringList>("names");
        const auto row = [](const char *pName, const QString &strHtml, const QStringList &listName) {
            QTest::newRow(pName) << strHtml << listName;
        };
        const QString strRest = " type=\"t\" style=\"s\"/>";
        row("empty", "", {});
        row("no body", "<img src=\"a.png\"" + strRest, {});
        row("one", inBody("<img src=\"a.png\"" + strRest), {"a.png"});
        row("two in their order", inBody("<img src=\"b.png\"" + strRest + "x<img src=\"a.png\"" + strRest),
            {"b.png", "a.png"});
        row("the same one twice", inBody(("<img src=\"a.png\"" + strRest).repeated(2)), {"a.png", "a.png"});
        for (const char *pOrder : {"src type style", "src style type", "type src style", "type style src",
                                   "style src type", "style type src"}) {
            QString strTag = "<img";
            for (const QString &strName : QString(pOrder).split(' ')) {
                strTag += " " + strName + "=\"" + (strName == "src" ? "x/a.png" : "v") + "\"";
            }
            row(pOrder, inBody(strTag + "/>"), {"a.png"});
        }
        row("others between them",
            inBody("<img id=\"1\" type=\"t\" alt=\"2\" src=\"a.png\" w=\"3\" style=\"s\" h=\"4\"/>"), {"a.png"});
        row("a local address", inBody("<img src=\"file:///c/d/a.png\"" + strRest), {"a.png"});
        row("two of the three", inBody("<img src=\"a.png\" type=\"t\"/>"), {});
        row("an empty src", inBody("<img src=\"\"" + strRest), {});
        row("no src", inBody("<img type=\"a\" style=\"b\" x-type=\"c\"/>"), {});
        row("an emoticon", inBody("<img src=\"Resources/Emotion/1.gif\"" + strRest), {});
        row("a failed one", inBody("<img src=\"x/failed.png\"" + strRest), {});
        row("one to get again", inBody("<img src=\"downagain.png\"" + strRest), {});
        row("upper case is no image", inBody("<IMG src=\"a.png\"" + strRest), {});
        row("single quotes do not count", inBody("<img src='a.png' type='t' style='s'/>"), {});
        row("not well-formed", inBody("<img src=\"a.png\" type=\"t\" style=\"s\">"), {});
        row("another element", inBody("<imgx src=\"a.png\"" + strRest), {});
        row("an entity", inBody("<img src=\"a&amp;b.png\"" + strRest), {"a&b.png"});
        row("before and behind the body", "<img src=\"a.png\"" + strRest + "<body></body><img src=\"b.png\"" + strRest,
            {});
        row("two bodies are one", "<body></body><img src=\"a.png\"" + strRest + "<body></body>", {"a.png"});
        row("a body without an end", "<body><img src=\"a.png\"" + strRest, {});
        row("an end before the body", "</body><body><img src=\"a.png\"" + strRest, {});
        row("body in upper case", "<BODY><img src=\"a.png\"" + strRest + "</BODY>", {});
        row("an image that is cut off", inBody("<img src=\"a.png\" <img src=\"b.png\"" + strRest), {});
        row("one behind an open quote", inBody("<img src=\"><img src=\"a.png\"" + strRest), {"a.png"});
    }
    void imagesAreListedByTheirFiles()
    {
        QFETCH(QString, html);
        QFETCH(QStringList, names);
        QStringList listPath;
        for (const QString &strName : names) {
            listPath.append(cFolder + "/picRec/" + strName);
        }
        QCOMPARE(paths(html), listPath);
        QCOMPARE(pathsStepByStep(html), listPath);
    }

    void withoutSettingsThePathsStartAtTheRoot()
    {
        m_given.reset();
        QCOMPARE(paths(inBody("<img src=\"a.png\" type=\"\" style=\"\"/>")), QStringList("/picRec/a.png"));
    }

    void pathsAreAbsolute_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("path");
        QTest::newRow("a relative folder") << "data/u1" << QDir::currentPath() + "/data/u1/picRec/a.png";
        QTest::newRow("a folder above") << "/data/../u1"
                                        << "/u1/picRec/a.png";
        QTest::newRow("a slash at the end") << cFolder + "/" << cFolder + "/picRec/a.png";
    }
    void pathsAreAbsolute()
    {
        QFETCH(QString, folder);
        QFETCH(QString, path);
        SystemSetData::instance()->m_strUserFolder = folder;
        QCOMPARE(paths(inBody("<img src=\"a.png\" type=\"\" style=\"\"/>")), QStringList(path));
    }

    void recordsHoldWhatTheImageSays_data()
    {
        QTest::addColumn<QString>("tail");
        QTest::addColumn<QString>("size");
        QTest::newRow("none") << "" << QString();
        QTest::newRow("height") << " trueheight=\"20\"" << QString("20");
        QTest::newRow("width") << " truewidth=\"30\"" << QString("30");
        QTest::newRow("width wins") << " truewidth=\"30\" trueheight=\"20\"" << QString("30");
        QTest::newRow("an empty width does not") << " truewidth=\"\" trueheight=\"20\"" << QString("20");
    }
    void recordsHoldWhatTheImageSays()
    {
        QFETCH(QString, tail);
        const auto mapImage =
            records(inBody("<img src=\"s\" name=\"file:///d/a.png\" fileid=\"f1\" sequence=\"7\"" + tail + "/>"));
        QCOMPARE(mapImage.keys(), QStringList("d/a.png"));
        const CImageData &data = mapImage.first();
        QCOMPARE(data.m_strFileId, QString("f1"));
        QCOMPARE(data.m_strSequence, QString("7"));
        QTEST(data.m_strSize, "size");
        QCOMPARE(data.m_strReserved, QString());
    }

    void recordsStandUnderTheirNames_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QStringList>("names");
        const auto row = [](const char *pName, const QString &strHtml, const QStringList &listName) {
            QTest::newRow(pName) << strHtml << listName;
        };
        row("empty", "", {});
        row("two", inBody("<img src=\"s\" name=\"b\" fileid=\"1\"/><img fileid=\"2\" name=\"a\" src=\"s\"/>"),
            {"a", "b"});
        row("a placeholder", inBody("<img src=\"s\" name=\"x/downagain.png\" fileid=\"1\"/>"), {});
        row("other placeholders count", inBody("<img src=\"failed.png\" name=\"Emotion\" fileid=\"1\"/>"), {"Emotion"});
        row("no name", inBody("<img src=\"s\" x-src=\"t\" fileid=\"1\"/>"), {""});
        row("not well-formed", inBody("<img src=\"s\" name=\"b\" fileid=\"1\">"), {});
        row("two of the three", inBody("<img src=\"s\" name=\"b\"/>"), {});
        row("type and style do not count", inBody("<img src=\"s\" type=\"b\" style=\"1\"/>"), {});
    }
    void recordsStandUnderTheirNames()
    {
        QFETCH(QString, html);
        QTEST(QStringList(records(html).keys()), "names");
        QTEST(namesStepByStep(html), "names");
    }

    void theLastOfANameCounts()
    {
        const auto mapImage =
            records(inBody("<img src=\"s\" name=\"a\" fileid=\"1\"/><img src=\"s\" name=\"a\" fileid=\"2\"/>"));
        QCOMPARE(mapImage.size(), 1);
        QCOMPARE(mapImage.value("a").m_strFileId, QString("2"));
    }

    void isWhatOneStepAfterTheOtherGives()
    {
        int iFound = 0;
        for (quint32 iSeed = 0; iSeed < 3000; ++iSeed) {
            RandomMessage message(iSeed);
            const QString strHtml = iSeed % 2 ? message.document() : inBody(message.scraps());
            QCOMPARE(paths(strHtml), pathsStepByStep(strHtml));
            QCOMPARE(QStringList(records(strHtml).keys()), namesStepByStep(strHtml));
            iFound += paths(strHtml).size() + records(strHtml).size();
        }
        QVERIFY(iFound > 100);
    }

    void hostileTextsEnd_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<int>("images");
        const auto row = [](const char *pName, const QString &strHtml, int iImages) {
            QTest::newRow(pName) << inBody(strHtml) << iImages;
        };
        row("image beginnings", QString("<img ").repeated(16000), 0);
        row("with one end", QString("<img ").repeated(16000) + "/>", 0);
        row("with attributes", QString("<img src=\"").repeated(16000) + "/>", 0);
        row("open quotes", "<img " + QString("type=\"").repeated(100000) + "/>", 0);
        row("thousands of images", QString("<img src=\"a\" type=\"b\" style=\"c\"/>").repeated(20000), 20000);
        row("bodies", QString("<body>").repeated(100000), 0);
        row("nested elements", QString("<p>").repeated(100000), 0);
    }
    void hostileTextsEnd()
    {
        QFETCH(QString, html);
        QTEST(paths(html).size(), "images");
        QCOMPARE(records(html).size(), 0);
    }

private:
    CommonData m_context;
    std::optional<GivenContext> m_given;
};

#include "support/TestProgram.h"
VOIP_TEST(tst_HtmlImages, Guiless)
#include "tst_HtmlImages.moc"
