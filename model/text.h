#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace kesto::model {

// Replaces chains of + that begin with a literal and a temporary: g++ 12 falsely warns of overlapping copies there.
inline std::string join(std::initializer_list<std::string_view> pieces)
{
    std::string out;
    for (const std::string_view piece : pieces)
        out += piece;
    return out;
}

}   // namespace kesto::model
