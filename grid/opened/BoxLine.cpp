#include "grid/opened/BoxLine.h"

#include "grid/opened/LibraryFilter.h"
#include "grid/opened/OpenDataset.h"

namespace boxline {
namespace {

using Box = BoxLine::Box;

CommandReading readingOf(const BoxLine& line)
{
    using enum CommandParser::BareCondition;
    CommandReading reading{line.dialect};
    if (line.isEdited) {
        reading.inForce = CommandReading::InForce::IsReplaced;
    }
    if (line.box != Box::ByVariables) {
        reading.bare = line.box == Box::DatasetFilter ? IsIf : IsWhere;
    }
    return reading;
}

QString inForce(Box box, const OpenDataset* opened, const LibraryFilter& library)
{
    if (box == Box::LibraryFilter) {
        return library.text();
    }
    if (opened == nullptr) {
        return {};
    }
    return box == Box::DatasetFilter ? opened->datasetFilterText() : opened->byText();
}

void clear(Box box, OpenDataset* opened, LibraryFilter& library)
{
    if (box == Box::LibraryFilter) {
        library.clear();
    } else if (opened != nullptr) {
        box == Box::DatasetFilter ? opened->clearDatasetFilter() : opened->clearByVariables();
    }
}

/// Makes the text the BY list, or runs it where it begins with the word of a command and is none.
CommandOutcome runBy(const QString& text, OpenDataset& opened)
{
    CommandOutcome outcome = opened.setByVariables(text);
    return outcome && CommandParser::beginsCommand(text) ? opened.run(text, Dialect::Command)
                                                         : outcome;
}

}  // namespace

QString trimmed(const QString& text)
{
    QStringView rest = QStringView(text).trimmed();
    while (rest.endsWith(u';')) {
        rest = rest.chopped(1).trimmed();
    }
    return rest.toString();
}

CommandOutcome run(const BoxLine& line, OpenDataset* opened, LibraryFilter& library)
{
    const QString text = trimmed(line.text);
    if (text.isEmpty()) {
        clear(line.box, opened, library);
        return std::nullopt;
    }
    if (text == inForce(line.box, opened, library)) {
        return std::nullopt;
    }
    if (opened == nullptr && line.box == Box::ByVariables) {
        return CommandFailure{QString::fromUtf8(ParseError::nothingOpen), text};
    }
    if (opened == nullptr) {
        return library.run(text, readingOf(line));
    }
    return line.box == Box::ByVariables ? runBy(text, *opened) : opened->run(text, readingOf(line));
}

}  // namespace boxline
