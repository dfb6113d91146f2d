#include "model/Jid.h"

namespace {

constexpr std::size_t cMaxPartBytes = 1023;
constexpr std::size_t cMaxLabelBytes = 63;

bool isBeyondAscii(char ch)
{
    return static_cast<unsigned char>(ch) >= 0x80;
}

// The class ends at 0x17, deliberately: 0x18 to 0x1F are allowed.
bool isRejectedControl(char ch)
{
    return static_cast<unsigned char>(ch) <= 0x17 || ch == 0x7F;
}

bool isRejectedInNode(char ch)
{
    static const std::string s_strRejected = " \"&'/:<>@";
    return isRejectedControl(ch) || s_strRejected.find(ch) != std::string::npos;
}

char accept(char ch, bool bAccepted, bool *ok)
{
    *ok = bAccepted;
    return bAccepted ? ch : '\0';
}

} // namespace

Jid::Jid(const std::string &strFull)
{
    const std::size_t iSlash = strFull.find('/');
    const std::string strBare = strFull.substr(0, iSlash);
    if (iSlash != std::string::npos) {
        m_strResource = strFull.substr(iSlash + 1);
    }
    const std::size_t iAt = strBare.find('@');
    if (iAt == std::string::npos) {
        m_strDomain = strBare;
    } else {
        m_strNode = strBare.substr(0, iAt);
        m_strDomain = strBare.substr(iAt + 1);
    }
    ValidateOrReset();
}

Jid::Jid(const std::string &strNode, const std::string &strDomain, const std::string &strResource)
    : m_strNode(strNode), m_strDomain(strDomain), m_strResource(strResource)
{
    ValidateOrReset();
}

std::string Jid::Str() const
{
    if (!IsValid()) {
        return {};
    }
    std::string strText = m_strNode.empty() ? m_strDomain : m_strNode + "@" + m_strDomain;
    if (!m_strResource.empty()) {
        strText += "/" + m_strResource;
    }
    return strText;
}

Jid Jid::BareJid() const
{
    if (!IsValid()) {
        return {};
    }
    return m_strResource.empty() ? *this : Jid(m_strNode, m_strDomain, std::string());
}

bool Jid::IsEmpty() const
{
    return m_strNode.empty() && m_strDomain.empty() && m_strResource.empty();
}

bool Jid::IsBare() const
{
    return m_strResource.empty() && (m_strNode.empty() || IsValid());
}

bool Jid::BareEquals(const Jid &other) const
{
    return m_strNode == other.m_strNode && m_strDomain == other.m_strDomain;
}

bool Jid::operator==(const Jid &other) const
{
    return BareEquals(other) && m_strResource == other.m_strResource;
}

int Jid::Compare(const Jid &other) const
{
    if (const int iNode = m_strNode.compare(other.m_strNode); iNode != 0) {
        return iNode;
    }
    if (const int iDomain = m_strDomain.compare(other.m_strDomain); iDomain != 0) {
        return iDomain;
    }
    return m_strResource.compare(other.m_strResource);
}

void Jid::ValidateOrReset()
{
    bool bNodeValid = false;
    bool bDomainValid = false;
    bool bResourceValid = false;
    m_strNode = PrepNode(m_strNode, &bNodeValid);
    m_strDomain = PrepDomain(m_strDomain, &bDomainValid);
    m_strResource = PrepResource(m_strResource, &bResourceValid);
    if (!bNodeValid || !bDomainValid || !bResourceValid) {
        m_strNode.clear();
        m_strDomain.clear();
        m_strResource.clear();
    }
}

std::string Jid::PrepNode(const std::string &strIn, bool *ok)
{
    *ok = strIn.size() <= cMaxPartBytes;
    for (auto it = strIn.cbegin(); *ok && it != strIn.cend(); ++it) {
        PrepNodeAscii(*it, ok);
    }
    return *ok ? strIn : std::string();
}

char Jid::PrepNodeAscii(char ch, bool *ok)
{
    return accept(ch, !isRejectedInNode(ch), ok);
}

std::string Jid::PrepResource(const std::string &strIn, bool *ok)
{
    *ok = strIn.size() <= cMaxPartBytes;
    if (!*ok) {
        return {};
    }
    std::string strOut;
    strOut.reserve(strIn.size());
    for (const char ch : strIn) {
        // A rejected character becomes a NUL byte and the resource stays valid, deliberately.
        bool bAccepted = false;
        strOut += PrepResourceAscii(ch, &bAccepted);
    }
    return strOut;
}

char Jid::PrepResourceAscii(char ch, bool *ok)
{
    return accept(ch, !isRejectedControl(ch), ok);
}

std::string Jid::PrepDomain(const std::string &strIn, bool *ok)
{
    std::string strOut;
    PrepDomain(strIn, &strOut, ok);
    // Too long is empty but not invalid, deliberately: such a Jid keeps node and resource.
    return *ok && strOut.size() <= cMaxPartBytes ? strOut : std::string();
}

void Jid::PrepDomain(const std::string &strIn, std::string *out, bool *ok)
{
    auto first = strIn.cbegin();
    for (auto it = strIn.cbegin(); it != strIn.cend(); ++it) {
        if (*it != '.') {
            continue;
        }
        PrepDomainLabel(first, it, out, ok);
        if (!*ok) {
            return;
        }
        *out += '.';
        first = it + 1;
    }
    PrepDomainLabel(first, strIn.cend(), out, ok);
}

void Jid::PrepDomainLabel(std::string::const_iterator first, std::string::const_iterator last, std::string *out,
                          bool *ok)
{
    const std::size_t iStart = out->size();
    for (auto it = first; it != last; ++it) {
        const char ch = PrepDomainLabelAscii(*it, ok);
        if (!*ok) {
            return;
        }
        *out += ch;
    }
    const std::size_t iLength = out->size() - iStart;
    *ok = iLength >= 1 && iLength <= cMaxLabelBytes && (*out)[iStart] != '-' && out->back() != '-';
}

char Jid::PrepDomainLabelAscii(char ch, bool *ok)
{
    if (ch >= 'A' && ch <= 'Z') {
        return accept(static_cast<char>(ch - 'A' + 'a'), true, ok);
    }
    const bool bAccepted = (ch >= 'a' && ch <= 'z') || (ch >= '0' && ch <= '9') || ch == '-' || isBeyondAscii(ch);
    return accept(ch, bAccepted, ok);
}
