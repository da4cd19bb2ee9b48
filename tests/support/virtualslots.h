// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstring>

#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)
/// Place of a virtual operation among the slots of its class, -1 for another member: a pointer to a virtual member
/// holds the offset of its slot plus one.
template <typename Member>
std::ptrdiff_t slotOf(Member member)
{
    static_assert(sizeof(member) == 2 * sizeof(std::ptrdiff_t), "pointer and adjustment");
    std::ptrdiff_t words[2];
    std::memcpy(words, &member, sizeof(member));
    return words[1] == 0 && words[0] % 2 == 1 ? words[0] / static_cast<std::ptrdiff_t>(sizeof(void *)) : -1;
}
#endif
