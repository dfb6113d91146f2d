#pragma once

// The identity of a person, room or resource: node@domain/resource, checked and normalised.
// A plain value of three byte strings in UTF-8; every length and comparison counts bytes. What is not valid becomes
// empty, without a report. May be used on any thread; an object belongs to whoever holds it.

#include <string>

class Jid
{
public:
    /// All three parts empty.
    Jid() = default;

    /// Takes a text of the form [node@]domain[/resource] apart and normalises it; a malformed text gives an empty Jid.
    Jid(const std::string &strFull);

    /// Takes the parts as they are and normalises them; one malformed part gives an empty Jid.
    Jid(const std::string &strNode, const std::string &strDomain, const std::string &strResource);

    /// The part before "@", case kept; empty for a bare domain.
    const std::string &node() const { return m_strNode; }

    /// The domain, its ASCII letters in lower case; empty when the Jid is not valid.
    const std::string &domain() const { return m_strDomain; }

    /// The part behind "/"; empty for a bare Jid.
    const std::string &resource() const { return m_strResource; }

    /// The text form; empty when the domain is empty.
    std::string Str() const;

    /// The same identity without its resource; empty when the domain is empty.
    Jid BareJid() const;

    /// True when there is a domain.
    bool IsValid() const { return !m_strDomain.empty(); }

    /// True when all three parts are empty.
    bool IsEmpty() const;

    /// True without a resource, also for an empty Jid; false for a node that has no domain.
    bool IsBare() const;

    /// True when domain and resource are both there.
    bool IsFull() const { return !m_strDomain.empty() && !m_strResource.empty(); }

    /// True when node and domain are equal, whatever the resources.
    bool BareEquals(const Jid &other) const;
    /// True when all three parts are equal.
    bool operator==(const Jid &other) const;
    /// False when all three parts are equal.
    bool operator!=(const Jid &other) const { return !(*this == other); }

    /// Orders by node, domain, resource, by byte and then the shorter first. Negative: this one sorts before other;
    /// positive: behind it; 0: equal.
    int Compare(const Jid &other) const;

    /// Normalises the parts, or clears all three when one of them is not valid.
    void ValidateOrReset();

    /// The node as it is, or empty and *ok false with a rejected character or more than 1023 bytes. Empty is valid.
    static std::string PrepNode(const std::string &strIn, bool *ok);

    /// The character, or 0 and *ok false when a node may not hold it.
    static char PrepNodeAscii(char ch, bool *ok);

    /// The resource with each rejected character turned into a NUL byte; *ok is false only with more than 1023 bytes,
    /// and the result then empty.
    static std::string PrepResource(const std::string &strIn, bool *ok);

    /// The character, or 0 and *ok false when a resource may not hold it.
    static char PrepResourceAscii(char ch, bool *ok);

    /// The domain in lower case, or empty and *ok false when one of its labels is not valid. A domain of valid labels
    /// with more than 1023 bytes gives the empty text and *ok true.
    static std::string PrepDomain(const std::string &strIn, bool *ok);

    /// Appends the labels of strIn to *out, joined by "."; ends at the first label that is not valid, with *ok false.
    static void PrepDomain(const std::string &strIn, std::string *out, bool *ok);

    /// Appends the label between the two iterators to *out in lower case; ends at a rejected character. *ok is false
    /// for such a character, for a length outside 1 to 63 and for a "-" at either end.
    static void PrepDomainLabel(std::string::const_iterator first, std::string::const_iterator last, std::string *out,
                                bool *ok);

    /// The character, A to Z in lower case, or 0 and *ok false when a label may not hold it.
    static char PrepDomainLabelAscii(char ch, bool *ok);

private:
    std::string m_strNode;
    std::string m_strDomain;
    std::string m_strResource;
};
