#pragma once

// Tells whether a memory block has been given back by the plain operator delete, which a program that links this file
// replaces by one that looks at each block.

namespace FreedBlocks {

/// A new block from ::operator new that is watched from now on. At most 16 in one program.
void *watched();

/// Whether the watched `block` has been freed.
bool isFreed(const void *block);

} // namespace FreedBlocks
