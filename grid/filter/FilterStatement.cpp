#include "grid/filter/FilterStatement.h"

#include "grid/filter/CompareOp.h"
#include "grid/filter/ConditionParser.h"
#include "grid/filter/ParseError.h"

#include <fmt/format.h>

#include <algorithm>

namespace filterstatement {

Result<QString> condition(QStringView filterText, QStringView word)
{
    const QStringView text = filterText.trimmed();
    const QStringView rest = text.sliced(std::min(word.size(), text.size()));
    if (!compareop::sameWord(text.first(text.size() - rest.size()), word)
        || (!rest.isEmpty() && !rest.front().isSpace())) {
        return Failure{fmt::format("A filter text begins with \"{}\": {}",
                                   word.toString().toStdString(), text.toString().toStdString())};
    }
    try {
        return ConditionParser::parseAll(rest).text;
    } catch (const ParseError& error) {
        return Failure{error.what()};
    }
}

}  // namespace filterstatement
