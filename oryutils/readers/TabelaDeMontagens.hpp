#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

struct TMontagem {
    std::string Pasta{};
    std::string Origem{};  // the block device, or what the file server calls it
    bool operator==(const TMontagem&) const = default;
};

/// The disks and file servers of a text like /proc/self/mountinfo: "/" first, whatever it is on, then the others by
/// folder. What is mounted on a file, a second mount of the same device, images of read-only packages and the kernel's
/// own file systems are left out.
std::vector<TMontagem> LerTabelaDeMontagens(std::string_view ATabela);

}  // namespace OryUtils::Interno
