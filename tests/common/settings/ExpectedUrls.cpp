#include "common/settings/ExpectedUrls.h"

#include <QFile>
#include <QHash>

namespace {

using Getter = std::variant<QString (*)(), QString (*)(const QString &)>;

/// The class's functions by their names: a document has no pointers.
const QHash<QString, Getter> &getters()
{
    static const QHash<QString, Getter> s_getters = {
#define URL_GETTER(name, key, endpoint, path, form) {#name, &CUrlInfo::name},
#include "common/CUrlInfo.def"
    };
    return s_getters;
}

/// The cells of a row of a table; none of another line.
QStringList cellsOf(const QString &line)
{
    QStringList cells = line.split('|');
    if (cells.size() < 3 || !line.startsWith("| ")) {
        return {};
    }
    cells.removeFirst();
    cells.removeLast();
    for (QString &cell : cells) {
        cell = cell.trimmed();
    }
    return cells;
}

/// Reads line by line. The table of the services comes before those that name them.
class DocumentReader
{
public:
    void read(const QString &line)
    {
        const QStringList cells = cellsOf(line);
        if (cells.size() == 3) {
            m_bases.insert(cells[0], cells[1]);
        } else if (cells.size() == 5 && cells[0].startsWith('`')) {
            readGetter(cells);
        } else if (!cells.isEmpty() && cells[0] != "function") {
            qFatal("No row of an address: %s", qPrintable(line));
        }
    }

    std::vector<ExpectedUrl> take() { return std::move(m_urls); }

private:
    void readGetter(const QStringList &cells)
    {
        static const QHash<QString, UrlForm> forms = {
            {"", UrlForm::Plain}, {"cached", UrlForm::Cached}, {"text", UrlForm::Arg}};
        const QString name = cells[0].mid(1, cells[0].size() - 2);
        const QString &service = cells[2];
        if (!getters().contains(name) || !forms.contains(cells[4]) ||
            !(service.isEmpty() || m_bases.contains(service))) {
            qFatal("No function, service or form: %s", qPrintable(cells.join(" | ")));
        }
        m_urls.push_back(
            {name.toLatin1(), cells[1], m_bases.value(service) + cells[3], forms[cells[4]], getters()[name]});
    }

    /// The base address of each service.
    QHash<QString, QString> m_bases;
    std::vector<ExpectedUrl> m_urls;
};

} // namespace

const std::vector<ExpectedUrl> &expectedUrls()
{
    static const std::vector<ExpectedUrl> s_urls = [] {
        QFile document(VOIP_ADDRESS_DOCUMENT);
        if (!document.open(QIODevice::ReadOnly)) {
            qFatal("%s cannot be read.", VOIP_ADDRESS_DOCUMENT);
        }
        DocumentReader reader;
        for (const QString &line : QString::fromUtf8(document.readAll()).split('\n')) {
            reader.read(line);
        }
        return reader.take();
    }();
    return s_urls;
}

QStringList everyAnswer()
{
    QStringList answers;
    for (const ExpectedUrl &row : expectedUrls()) {
        answers << row.ask("group 7");
    }
    return answers;
}
