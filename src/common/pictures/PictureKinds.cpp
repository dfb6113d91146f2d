#include "common/pictures/PictureKinds.h"

namespace {

struct KindRow
{
    int kind;
    const char *suffix;
    // Null for a kind that is not told by its first bytes.
    const char *signature;
};

// Deliberately all four bytes count: the client's callers rely on bitmaps of other sizes and JPEGs of other markers
// being unknown.
// clang-format off
constexpr KindRow cKindRows[] = {
    {1, "bmp",  "\x42\x4D\xE6\x52"},
    {2, "jpg",  "\xFF\xD8\xFF\xE0"},
    {3, "gif",  "\x47\x49\x46\x38"},
    {4, "png",  "\x89\x50\x4E\x47"},
    {5, "jpeg", nullptr},
};
// clang-format on

} // namespace

int PictureKinds::of(const QByteArray &data)
{
    for (const KindRow &row : cKindRows) {
        if (row.signature != nullptr && data.startsWith(QByteArray(row.signature, cSignatureLength))) {
            return row.kind;
        }
    }
    return 0;
}

QString PictureKinds::suffix(int iKind)
{
    for (const KindRow &row : cKindRows) {
        if (row.kind == iKind) {
            return QLatin1String(row.suffix);
        }
    }
    return {};
}
