#include "samples/Study.h"

#include "samples/AnalysisEvents.h"
#include "samples/AnalysisSubjects.h"
#include "samples/Demographics.h"
#include "samples/Exposure.h"
#include "samples/Findings.h"

#include <algorithm>
#include <stdexcept>

namespace samples {

Study::Study(std::uint64_t seed, int subjectCount)
{
    const auto subjects = makeSubjects(seed, subjectCount);
    const auto events = makeAdverseEvents(subjects, seed);
    m_tables.push_back(demographics(subjects));
    m_tables.push_back(demographicsQualifiers(subjects, seed));
    m_tables.push_back(adverseEvents(events));
    m_tables.push_back(adverseEventQualifiers(events, seed));
    m_tables.push_back(exposure(subjects, seed));
    m_tables.push_back(laboratory(subjects, seed));
    m_tables.push_back(vitalSigns(subjects, seed));
    m_tables.push_back(analysisSubjects(subjects));
    m_tables.push_back(analysisEvents(events));
}

const Table& Study::table(std::string_view name) const
{
    const auto found = std::ranges::find(m_tables, name, &Table::name);
    if (found == m_tables.end()) {
        throw std::out_of_range("no such dataset: " + std::string(name));
    }
    return *found;
}

}  // namespace samples
