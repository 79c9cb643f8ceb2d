#pragma once
// The version a signed package declares, read strictly: the helper that installs it compares
// numbers, never texts, and takes nothing that isn't three plain numbers.

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace corvina {

struct VersaoDoPacote {
    int major = 0, minor = 0, revisao = 0;
    auto operator<=>(const VersaoDoPacote&) const = default;
};

// "3.8.0": three numbers of one to four digits, joined by points, nothing else.
std::optional<VersaoDoPacote> leVersaoDoPacote(std::string_view texto);

std::string textoDaVersao(VersaoDoPacote v);

} // namespace corvina
