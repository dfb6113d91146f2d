#include "common/digests/Sha1.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace {

constexpr int cBlockOctets = 64;
constexpr int cLengthOctets = 8;

uint32_t rotate(uint32_t word, int bits)
{
    return word << bits | word >> (32 - bits);
}

uint32_t readBigEndian(const uint8_t *octets)
{
    return uint32_t(octets[0]) << 24 | uint32_t(octets[1]) << 16 | uint32_t(octets[2]) << 8 | uint32_t(octets[3]);
}

template <typename Word>
void writeBigEndian(Word word, uint8_t *octets)
{
    for (std::size_t i = 0; i < sizeof(Word); ++i) {
        octets[i] = static_cast<uint8_t>(word >> (8 * (sizeof(Word) - 1 - i)));
    }
}

// The round's function of three state words, with its constant added.
uint32_t mixed(int round, uint32_t b, uint32_t c, uint32_t d)
{
    if (round < 20) {
        return (d ^ (b & (c ^ d))) + 0x5a827999;
    }
    if (round < 40) {
        return (b ^ c ^ d) + 0x6ed9eba1;
    }
    if (round < 60) {
        return ((b & c) | (d & (b | c))) + 0x8f1bbcdc;
    }
    return (b ^ c ^ d) + 0xca62c1d6;
}

} // namespace

char Sha1::bit_string[65];

void Sha1::sha1(const uint8_t *message, int length, uint32_t *digest)
{
    sha1_ctx_t context;
    sha1_init(&context);
    sha1_update(&context, message, length);
    sha1_final(&context, digest);
}

void Sha1::sha1_init(sha1_ctx_t *context)
{
    *context = {{0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476, 0xc3d2e1f0}, {}, 0, 0};
}

void Sha1::sha1_update(sha1_ctx_t *context, const uint8_t *message, int length)
{
    context->num_octets_in_msg += static_cast<uint64_t>(std::max(length, 0));
    while (length > 0) {
        const int taken = std::min(length, cBlockOctets - context->octets_in_buffer);
        memcpy(context->M + context->octets_in_buffer, message, static_cast<std::size_t>(taken));
        context->octets_in_buffer += taken;
        message += taken;
        length -= taken;
        if (context->octets_in_buffer == cBlockOctets) {
            sha1_core(context->M, context->H);
            context->octets_in_buffer = 0;
        }
    }
}

void Sha1::sha1_final(sha1_ctx_t *context, uint32_t *digest)
{
    const uint64_t bits = context->num_octets_in_msg * 8;
    const uint8_t padding[cBlockOctets] = {0x80};
    const int used = context->octets_in_buffer;
    const int room = cBlockOctets - cLengthOctets;
    sha1_update(context, padding, used < room ? room - used : cBlockOctets + room - used);
    uint8_t length[cLengthOctets];
    writeBigEndian(bits, length);
    sha1_update(context, length, cLengthOctets);

    uint8_t octets[20];
    for (int i = 0; i < 5; ++i) {
        writeBigEndian(context->H[i], octets + ptrdiff_t(4) * i);
    }
    memcpy(digest, octets, sizeof octets);
}

void Sha1::sha1_core(const uint8_t *block, uint32_t *state)
{
    uint32_t w[80];
    for (int i = 0; i < 16; ++i) {
        w[i] = readBigEndian(block + ptrdiff_t(4) * i);
    }
    for (int i = 16; i < 80; ++i) {
        w[i] = rotate(w[i - 3] ^ w[i - 8] ^ w[i - 14] ^ w[i - 16], 1);
    }
    uint32_t a = state[0];
    uint32_t b = state[1];
    uint32_t c = state[2];
    uint32_t d = state[3];
    uint32_t e = state[4];
    for (int i = 0; i < 80; ++i) {
        const uint32_t next = rotate(a, 5) + mixed(i, b, c, d) + e + w[i];
        e = d;
        d = c;
        c = rotate(b, 30);
        b = a;
        a = next;
    }
    state[0] += a;
    state[1] += b;
    state[2] += c;
    state[3] += d;
    state[4] += e;
}

char Sha1::nibble_to_hex_char1(int nibble)
{
    return "0123456789abcdef"[nibble & 0xf];
}

const char *Sha1::octet_string_hex_string1(const void *data, int n)
{
    const auto *octets = static_cast<const uint8_t *>(data);
    // Deliberate: what would need more than 64 digits is cut at 63, not at 64.
    const int length = n > 32 ? 63 : std::max(2 * n, 0);
    for (int i = 0; i < length; ++i) {
        const int octet = octets[i / 2];
        bit_string[i] = nibble_to_hex_char1(i % 2 == 0 ? octet >> 4 : octet);
    }
    bit_string[length] = '\0';
    return bit_string;
}
