#pragma once

// A label of several lines that shows whole lines only: a text without the room that it needs ends with "…" at the end
// of a line. text() stays whole. GUI thread only; Qt's ownership by parent applies.

#include <QLabel>

#include <memory>

class QTextDocument;

class MessageLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label. `parent` may be null.
    explicit MessageLabel(QWidget *parent = nullptr);
    ~MessageLabel() override;

    /// How far down from the label's top edge lines may reach, in pixels; at first, and with any value beyond it, to
    /// its bottom edge. A text with room above it stands as near to its alignment as that allows.
    void setLowestLine(int iBottom);

    /// Whether the whole text shows in the label's present size.
    bool hasRoom() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Layout;

    QRect place() const;
    bool isMarkup() const;
    int neededHeight() const;
    int topOf(int iHeight) const;
    const Layout &layOut() const;
    std::unique_ptr<QTextDocument> wholeText() const;

    const std::unique_ptr<Layout> m_pLayout; ///< kept until the text, its look or its place is another
    int m_iLowestLine = QWIDGETSIZE_MAX;
};
