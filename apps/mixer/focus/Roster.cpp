#include "mixer/focus/Roster.h"

#include <algorithm>

namespace Focus {

namespace {

using Members = std::vector<std::unique_ptr<Member>>;

template <class Condition>
QStringList idsOf(const Members &members, const Condition &condition)
{
    QStringList ids;
    for (const std::unique_ptr<Member> &member : members) {
        if (condition(*member)) {
            ids.append(member->id);
        }
    }
    return ids;
}

} // namespace

Roster::Roster(const QString &creator) : m_creator(creator)
{
    take(creator);
}

Member *Roster::find(const QString &id) const
{
    return m_byId.value(id);
}

Member &Roster::take(const QString &id)
{
    Member *&member = m_byId[id];
    if (member == nullptr) {
        m_members.push_back(std::make_unique<Member>());
        member = m_members.back().get();
        member->id = id;
    }
    return *member;
}

void Roster::forget(const QString &id)
{
    if (id != m_creator && m_byId.remove(id) > 0) {
        m_members.erase(std::find_if(m_members.begin(), m_members.end(),
                                     [&id](const std::unique_ptr<Member> &member) { return member->id == id; }));
    }
}

void Roster::forgetAbsent(int most)
{
    auto tooMany = static_cast<int>(m_members.size()) - most;
    const auto goes = [&](const std::unique_ptr<Member> &member) {
        return tooMany > 0 && !member->isPresent() && member->id != m_creator && m_byId.remove(member->id) > 0 &&
               tooMany-- > 0;
    };
    m_members.erase(std::remove_if(m_members.begin(), m_members.end(), goes), m_members.end());
}

int Roster::presentCount() const
{
    return static_cast<int>(std::count_if(m_members.begin(), m_members.end(),
                                          [](const std::unique_ptr<Member> &member) { return member->isPresent(); }));
}

bool Roster::isInUse() const
{
    return std::any_of(m_members.begin(), m_members.end(), [](const std::unique_ptr<Member> &member) {
        return member->isPresent() && member->state != Member::State::Invited;
    });
}

QStringList Roster::ids() const
{
    return idsOf(m_members, [](const Member & /*member*/) { return true; });
}

QStringList Roster::connected() const
{
    return idsOf(m_members, [](const Member &member) { return member.state == Member::State::Connected; });
}

QStringList Roster::muted() const
{
    return idsOf(m_members, [](const Member &member) { return member.muted; });
}

} // namespace Focus
