#include "model/DistinctParts.h"

#include <QHash>
#include <QVector>

#include <algorithm>
#include <numeric>

namespace {

/// All parts in one tree. Each node stands for a text with which some part begins, and knows the node of the longest
/// text that ends its own: so a single walk over all parts comes past each place where a part stands.
class EndingTree
{
public:
    explicit EndingTree(const QStringList &listPart)
    {
        addNode(0, QChar());
        for (const QString &strPart : listPart) {
            add(strPart);
        }
        linkEndings();
    }

    /// Walks over `strPart`; true when it stood nowhere in what was walked over before.
    bool isNew(const QString &strPart)
    {
        int iNode = 0;
        for (const QChar unit : strPart.leftRef(strPart.size() - 1)) {
            iNode = step(iNode, unit);
            meet(iNode);
        }
        iNode = step(iNode, strPart.at(strPart.size() - 1));
        const bool bNew = !m_listNode.at(iNode).bMet;
        meet(iNode);
        return bNew;
    }

private:
    struct Node
    {
        int iBefore;
        QChar unit;
        int iDepth;
        int iEnding = 0;
        bool bMet = false;
    };

    static quint64 key(int iNode, QChar unit) { return quint64(iNode) << 16 | unit.unicode(); }

    void addNode(int iBefore, QChar unit)
    {
        m_listNode.append({iBefore, unit, m_listNode.isEmpty() ? 0 : m_listNode.at(iBefore).iDepth + 1});
    }

    void add(const QString &strPart)
    {
        int iNode = 0;
        for (const QChar unit : strPart) {
            int &iNext = m_next[key(iNode, unit)];
            if (iNext == 0) {
                iNext = m_listNode.size();
                addNode(iNode, unit);
            }
            iNode = iNext;
        }
    }

    // Nodes of shorter texts come first, because the ending of a node is found through that of a shorter one.
    void linkEndings()
    {
        QVector<int> listByDepth(m_listNode.size() - 1);
        std::iota(listByDepth.begin(), listByDepth.end(), 1);
        std::stable_sort(listByDepth.begin(), listByDepth.end(),
                         [this](int a, int b) { return m_listNode.at(a).iDepth < m_listNode.at(b).iDepth; });
        for (const int i : listByDepth) {
            Node &node = m_listNode[i];
            node.iEnding = node.iDepth == 1 ? 0 : step(m_listNode.at(node.iBefore).iEnding, node.unit);
        }
    }

    int step(int iNode, QChar unit) const
    {
        for (;;) {
            const int iNext = m_next.value(key(iNode, unit), 0);
            if (iNext != 0 || iNode == 0) {
                return iNext;
            }
            iNode = m_listNode.at(iNode).iEnding;
        }
    }

    // A text that has been met contains all its endings, so these have been met too.
    void meet(int iNode)
    {
        for (; iNode != 0 && !m_listNode.at(iNode).bMet; iNode = m_listNode.at(iNode).iEnding) {
            m_listNode[iNode].bMet = true;
        }
    }

    QVector<Node> m_listNode;
    QHash<quint64, int> m_next;
};

} // namespace

QStringList DistinctParts::of(const QStringList &listPart)
{
    QStringList listFilled = listPart;
    listFilled.removeAll(QString());
    EndingTree tree(listFilled);
    QStringList listNew;
    std::copy_if(listFilled.cbegin(), listFilled.cend(), std::back_inserter(listNew),
                 [&tree](const QString &strPart) { return tree.isNew(strPart); });
    return listNew;
}
