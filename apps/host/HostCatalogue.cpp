#include "HostCatalogue.h"

#include <cstring>

namespace {

struct Row
{
    const char *key;
    const char *text;
};

constexpr Row rows[] = {
    {"sure", "确定"},
    {"cancel", "取消"},
    {"close", "关闭"},
    {"tip", "提示"},
    {"soundfailedinsound", "正在通话中，请先结束当前通话"},
    {"beSureToCloseCalling", "确定要结束当前通话吗？"},
    {"openmic", "打开麦克风"},
    {"closemic", "关闭麦克风"},
    {"openvioce", "打开声音"},
    {"silence", "静音"},
    {"enternothandle", "未处理的消息"},
    {"tarvoShowName", "KelvarIM"},
};

} // namespace

QString HostCatalogue::translate(const char *, const char *sourceText, const char *, int) const
{
    for (const Row &row : rows) {
        if (std::strcmp(row.key, sourceText) == 0) {
            return QString::fromUtf8(row.text);
        }
    }
    return QString();
}
