#pragma once

#include "samples/Table.h"

#include <cstdint>
#include <string_view>

namespace samples {

/// An invented trial: SDTM DM, SUPPDM, AE, SUPPAE, LB, VS, EX and ADaM ADSL, ADAE.
class Study
{
public:
    static constexpr std::uint64_t defaultSeed = 20230109;

    explicit Study(std::uint64_t seed = defaultSeed, int subjectCount = 260);

    [[nodiscard]] const std::vector<Table>& tables() const { return m_tables; }

    /// @throws std::out_of_range for a name that the study does not have
    [[nodiscard]] const Table& table(std::string_view name) const;

private:
    std::vector<Table> m_tables;
};

}  // namespace samples
