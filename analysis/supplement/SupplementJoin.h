#pragma once

#include "data/InMemoryDataset.h"
#include "data/Result.h"

#include <memory>
#include <string>
#include <vector>

/// The join of supplemental qualifiers (SUPP--) to the observations that they belong to: a text
/// variable for each QNAM behind those of the parent. docs/supp.md tells the rules.
namespace supplement {

/// What is wrong with a row of a SUPP-- dataset.
enum class Fault
{
    NoName,  ///< QNAM is blank
    NoValue,  ///< QVAL is blank
    OtherDomain,  ///< RDOMAIN is not the parent's
    NoSubject,
    NoIdVariable,  ///< IDVARVAL without IDVAR
    UnknownIdVariable,  ///< the parent has no variable IDVAR
    NoIdValue,  ///< IDVAR without IDVARVAL
    NoNumber,  ///< IDVAR is numeric and IDVARVAL is not
    UnknownSubject,
    NoObservation,  ///< of the subject with that value
    Conflict,  ///< another row has another value for the same cell
};

/// A row of a SUPP-- dataset that could not be joined, or not alone.
struct Finding
{
    Fault fault{};
    std::size_t supplement = 0;  ///< which of the SUPP-- datasets
    int row = 0;  ///< of it
    std::string domain{};
    std::string subject{};
    std::string idVariable{};
    std::string idValue{};
    std::string name{};
    std::string value{};

    // Of a conflict only.
    std::size_t otherSupplement = 0;  ///< that had the first value
    int otherRow = -1;
    std::string otherValue{};
    int observation = -1;  ///< of the parent, the first one concerned
    int observations = 0;  ///< how many are
};

/// A dataset that takes part, and what its user calls it.
struct Supplement
{
    const StatDataset* dataset = nullptr;
    std::string file{};
};

struct Joined
{
    std::unique_ptr<InMemoryDataset> dataset;
    int joinedVariables = 0;  ///< at its end
    std::vector<std::string> supplements;  ///< the names of the SUPP-- datasets
    std::vector<Finding> findings;  ///< in the order of the rows
    std::vector<std::string> notes;  ///< what else is not as it seems, a sentence each

    [[nodiscard]] int conflicts() const;
    [[nodiscard]] int unmatched() const;
};

/// Stands between the values of one cell that conflict.
inline constexpr const char* valueSeparator = " | ";

/// Joins. The failure names the dataset and the variable that is missing. All datasets have been
/// read with their values; the SUPP-- datasets are only read.
/// @param file  the parent's, for people
[[nodiscard]] Result<Joined> join(std::unique_ptr<StatDataset> parent, const std::string& file,
                                  const std::vector<Supplement>& supplements);

/// Why a dataset can have no supplemental qualifiers; empty where it can.
[[nodiscard]] std::string whyNoParent(const StatDataset& dataset);

/// What is wrong, in a sentence.
[[nodiscard]] std::string sentenceOf(const Joined& joined, const Finding& finding);
/// The whole finding in a line: "SUPPAE row 3, 01-701 AESEQ=9 AETRTEM=Y: The subject ...".
[[nodiscard]] std::string lineOf(const Joined& joined, const Finding& finding);

}  // namespace supplement
