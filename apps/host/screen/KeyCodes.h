#pragma once

struct xcb_connection_t;

/// The keyboard of an X server. No state; one thread for each connection.
namespace KeyCodes {

/// How many symbols of a key are looked at.
enum Reach
{
    Plain, ///< the one that it gives without a modifier
    Any    ///< all of them, also those of other layouts
};

/// The number of the key that gives the symbol; 0 when there is none, or no server.
unsigned char codeOf(xcb_connection_t *pConnection, unsigned int symbol, Reach reach);

/// The modifier that the key of this number is, as a bit of a mask; 0 when it is none.
unsigned short modifierOf(xcb_connection_t *pConnection, unsigned char code);

} // namespace KeyCodes
