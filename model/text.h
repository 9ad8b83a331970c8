#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace kesto::model {

// Chains of + that begin with a literal and a fresh string make g++ 12 warn of overlapping copies that there are not.
inline std::string join(std::initializer_list<std::string_view> pieces)
{
    std::string out;
    for (const std::string_view piece : pieces)
        out += piece;
    return out;
}

}   // namespace kesto::model
