#include "store/SchemaDocument.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>

namespace {

// Reads line by line; a table of the document ends with the first line that does not begin with a bar.
class DocumentReader
{
public:
    void read(const QString &line)
    {
        if (line.startsWith('#')) {
            endSection();
            if (line.startsWith("### ")) {
                m_document.tables.append({line.mid(4), {}, {}, {}});
                m_isInSection = true;
            }
        } else if (!m_isInSection || !line.startsWith('|')) {
            m_header.clear();
        } else if (m_header.isEmpty()) {
            readHeader(line);
        } else if (!line.startsWith("|--")) {
            require(readRow(cellsOf(line)), line);
        }
    }

    SchemaDocument take()
    {
        endSection();
        return m_document;
    }

private:
    DocumentedTable &table() { return m_document.tables.last(); }

    void require(bool isUnderstood, const QString &text)
    {
        if (!isUnderstood) {
            m_document.complaints.append(table().name + ": " + text);
        }
    }

    static QStringList cellsOf(const QString &line)
    {
        QStringList cells = line.mid(1).split('|');
        cells.removeLast();
        for (QString &cell : cells) {
            cell = cell.trimmed();
        }
        return cells;
    }

    void readHeader(const QString &line)
    {
        m_header = cellsOf(line);
        QStringList header = m_header;
        header.removeOne("added later");
        header.removeOne("meaning");
        require(m_header == QStringList{"index", "on"} || header == QStringList{"column", "type"}, line);
    }

    bool readRow(const QStringList &cells)
    {
        if (cells.size() != m_header.size()) {
            return false;
        }
        return m_header.first() == "index" ? readIndex(cells[0], cells[1]) : readColumn(cells);
    }

    bool readColumn(const QStringList &cells)
    {
        const QString column = cells[0] + ' ' + cells[1];
        if (columnInfo(column).isEmpty() || m_names.contains(cells[0], Qt::CaseInsensitive)) {
            return false;
        }
        m_names.append(cells[0]);
        table().columns.append(column);
        const QString added = cells.value(m_header.indexOf("added later"));
        return added.isEmpty() || readLater(cells[0], cells[1], added);
    }

    // A number, and where the text that adds the column is not its type: ", as `text`".
    bool readLater(const QString &name, const QString &type, const QString &added)
    {
        static const QRegularExpression later("^(\\d+)(?:, as `([^`]+)`)?$");
        const QRegularExpressionMatch match = later.match(added);
        const int place = match.captured(1).toInt();
        const QString text = name + ' ' + (match.captured(2).isEmpty() ? type : match.captured(2));
        if (place == 0 || m_later.contains(place) || columnInfo(text).isEmpty()) {
            return false;
        }
        m_later.insert(place, text);
        return true;
    }

    bool readIndex(const QString &name, const QString &columns)
    {
        static const QRegularExpression word("^\\w+$");
        const QStringList on = columns.split(", ");
        table().indexes.append({name, on.join(',')});
        return word.match(name).hasMatch() &&
               std::all_of(on.begin(), on.end(), [this](const QString &column) { return m_names.contains(column); });
    }

    void endSection()
    {
        if (m_isInSection) {
            require(!m_names.isEmpty(), "no column");
            require(m_later.isEmpty() || m_later.lastKey() == m_later.size(), "a gap among the later columns");
            table().later = m_later.values();
        }
        m_isInSection = false;
        m_header.clear();
        m_names.clear();
        m_later.clear();
    }

    SchemaDocument m_document;
    bool m_isInSection = false;
    /// The head of the table of the document that is under way; empty outside one.
    QStringList m_header;
    QStringList m_names;
    QMap<int, QString> m_later;
};

} // namespace

QString schemaDocumentText()
{
    QFile document(VOIP_SCHEMA_DOCUMENT);
    return document.open(QIODevice::ReadOnly) ? QString::fromUtf8(document.readAll()) : QString();
}

SchemaDocument readSchemaDocument(const QString &text)
{
    DocumentReader reader;
    for (const QString &line : text.split('\n')) {
        reader.read(line);
    }
    return reader.take();
}

QString columnName(const QString &column)
{
    return column.section(' ', 0, 0);
}

QString columnInfo(const QString &column)
{
    static const QRegularExpression definition("^(\\w+) (\\w+(?:\\(\\d+\\))?)( primary key)?(?: default (\\S+))? ?$",
                                               QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = definition.match(column);
    if (!match.hasMatch()) {
        return {};
    }
    const QString fallback = match.captured(4).isEmpty() ? "NULL" : "'" + match.captured(4) + "'";
    return QStringList({match.captured(1), match.captured(2), "0", fallback, match.captured(3).isEmpty() ? "0" : "1"})
        .join('|');
}
