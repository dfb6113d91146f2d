#include "conference/Talk.h"

#include "FuzzTargets.h"

#include "conference/Attendance.h"
#include "conference/UserId.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr int cLongestRemark = 200;

void requireUsers(const QStringList &users)
{
    requirePromise(users.size() <= Talk::cMostUsers, "a list has its limit");
    requirePromise(std::all_of(users.begin(), users.end(), isUserId), "who is in a list can be a user");
    requirePromise(QSet<QString>(users.begin(), users.end()).size() == users.size(), "who is in a list is there once");
}

void readOn(Talk::Road road, const QByteArray &input)
{
    const Talk::Heard heard = Talk::read(input, road);
    requirePromise(heard.remark.size() <= cLongestRemark, "a remark is short");
    requirePromise(std::none_of(heard.remark.begin(), heard.remark.end(), isControl), "a remark is one line");
    if (!heard.message) {
        requirePromise(!heard.remark.isEmpty(), "what is no word is told");
        return;
    }
    requirePromise(Talk::rowOf(heard.message->saying).road == road, "a word is one of its road");
    for (const QStringList &users : {heard.message->members, heard.message->connected, heard.message->muted,
                                     heard.message->users, heard.message->joined, heard.message->left,
                                     heard.message->busy, heard.message->refused, heard.message->failed}) {
        requireUsers(users);
    }
    const QByteArray line = Talk::written(*heard.message);
    requirePromise(line.size() <= Talk::longestOn(road), "no word is written longer than it may be read");
    // Letters beyond ASCII take more room as it travels.
    if (!line.isEmpty()) {
        const Talk::Heard again = Talk::read(line, road);
        requirePromise(again.message && again.remark.isEmpty(), "what was written is a word");
        requirePromise(Talk::written(*again.message) == line, "what is written and read is the same");
    }
}

void requireLines(const ConferenceLines &lines, const QByteArray &input)
{
    requirePromise(lines.size() <= input.size() + 2, "lines come from the words");
    for (const ConferenceLine &line : lines) {
        requirePromise(line.code != Wire::Code::SdkLog ||
                           std::none_of(line.content.begin(), line.content.end(), isControl),
                       "a remark is one line");
    }
}

/// A call process that is invited by these bytes, and one that asks for a conference and hears them.
void attend(const QByteArray &input)
{
    Attendance invited;
    requireLines(invited.takeInvitation(input), input);
    requireLines(invited.takeBody(input), input);
    requireLines(invited.takeMedia(), input);
    requireLines(invited.takeEnd(), input);
    requirePromise(!invited.isThere(), "a conference that has ended is gone");

    Attendance asking;
    const QByteArray id = asking.request(QStringLiteral("anna"), {}, false, {}).id.toLatin1();
    QByteArray word = input;
    word.replace("7f3c", id);
    requireLines(asking.takeBody(word), word);
    requireLines(asking.takeMedia(), word);
    requireLines(asking.takeBody(word), word);
    requirePromise(!Talk::written(asking.resumption()).isEmpty(), "what was heard of it can be said");
}

} // namespace

void FuzzTargets::talk(const QByteArray &input)
{
    for (const Talk::Road road :
         {Talk::Road::InviteUp, Talk::Road::InviteDown, Talk::Road::InfoUp, Talk::Road::InfoDown}) {
        readOn(road, input);
    }
    attend(input);
}
