#pragma once

#include "samples/Table.h"

#include <string_view>

namespace samples {

/// Reads a table from a CSV file (samples/study), which says in this order:
///
///     AE,Adverse Events                     name and label of the dataset
///     AETERM,"Reported Term",text 23        name, label and type of each column; texts with their
///     ASTDT,Analysis Start,number,DATE9.    length in bytes, and a SAS format where there is one
///     AETERM,ASTDT                          the names of all columns once more
///     HEADACHE,2023-04-14                   the rows
///
/// Dates, date-times and times, as the format tells, are in ISO 8601 to the minute. An empty cell
/// is a missing number or a blank text.
/// @throws std::runtime_error naming the dataset, and the column where there is one
[[nodiscard]] Table readTable(std::string_view csv);

/// An invented trial of 60 subjects: SDTM DM, SUPPDM, AE, SUPPAE, LB, VS, EX and ADaM ADSL, ADAE.
[[nodiscard]] std::vector<Table> studyTables();

}  // namespace samples
