#pragma once

#include <QtGlobal>

/// An address that is only stored and given back: nothing stands there.
template <typename Type>
Type *somewhere(quintptr iAddress)
{
    return reinterpret_cast<Type *>(iAddress);
}
