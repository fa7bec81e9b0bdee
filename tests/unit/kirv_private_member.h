// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PRIVATE_MEMBER_H
#define KIRV_PRIVATE_MEMBER_H

#include <cstddef>

// An explicit instantiation may name private members: so tests reach the few of them whose order and first values
// are part of the class's contract, without a door in the class.

template <typename Name, auto Member>
struct KirvPrivateMember {
    friend constexpr auto kirvMember(Name) { return Member; }
};

/// After KIRV_PRIVATE_MEMBER(Class, member), kirvMember(Class_member()) is the pointer to that member.
#define KIRV_PRIVATE_MEMBER(Class, member)                                                                             \
    struct Class##_##member {                                                                                          \
        friend constexpr auto kirvMember(Class##_##member);                                                            \
    };                                                                                                                 \
    template struct KirvPrivateMember<Class##_##member, &Class::member>

/// Where a member stands in its object, in bytes.
template <typename Class, typename Type>
std::ptrdiff_t kirvOffset(const Class &object, Type Class::*member)
{
    return reinterpret_cast<const char *>(&(object.*member)) - reinterpret_cast<const char *>(&object);
}

#endif
