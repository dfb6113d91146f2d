#pragma once

// SHA-1 as published, in one call or in steps. The steps keep no state of their own: any thread with its own context.
// The hexadecimal text lies in one buffer of the process: main thread.

#include <cstdint>

/// What the steps carry along: the five state words, the block being filled, how many octets it holds, and the total.
struct sha1_ctx_t
{
    uint32_t H[5];
    uint8_t M[64];
    int octets_in_buffer;
    uint64_t num_octets_in_msg;
};

class Sha1
{
public:
    /// The digest of `length` octets in one call. `digest` takes five words whose memory is the digest's 20 octets in
    /// order. A length of 0 or less is the empty message, and `message` may then be null.
    static void sha1(const uint8_t *message, int length, uint32_t *digest);

    /// Starts a digest anew.
    static void sha1_init(sha1_ctx_t *context);

    /// Adds `length` octets; 0 or less adds none.
    static void sha1_update(sha1_ctx_t *context, const uint8_t *message, int length);

    /// Ends the digest and writes it as sha1 does; the context can then only be started anew.
    static void sha1_final(sha1_ctx_t *context, uint32_t *digest);

    /// Works one block of 64 octets into the five state words.
    static void sha1_core(const uint8_t *block, uint32_t *state);

    /// The lower-case digit of a nibble, 0 to 15; only the low four bits count.
    static char nibble_to_hex_char1(int nibble);

    /// `n` octets as lower-case hexadecimal text of 2n characters, of more than 32 octets the first 63. The text lies
    /// in a buffer of the process that the next call overwrites; 0 or less gives the empty text.
    static const char *octet_string_hex_string1(const void *data, int n);

private:
    static char bit_string[65];
};
