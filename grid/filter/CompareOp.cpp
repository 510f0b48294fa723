#include "grid/filter/CompareOp.h"

#include <algorithm>

namespace compareop {

bool sameWord(QStringView one, QStringView other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](QChar a, QChar b) { return a.toLower() == b.toLower(); });
}

std::optional<CompareOp> fromText(QStringView text)
{
    const auto* const found =
        std::find_if(spellings.begin(), spellings.end(),
                     [&](const Spelling& spelling) { return sameWord(spelling.text, text); });
    return found == spellings.end() ? std::nullopt : std::optional(found->op);
}

QStringView textOf(CompareOp op)
{
    switch (op) {
    case CompareOp::Equal:
        return u"=";
    case CompareOp::NotEqual:
        return u"^=";
    case CompareOp::Less:
        return u"<";
    case CompareOp::LessOrEqual:
        return u"<=";
    case CompareOp::Greater:
        return u">";
    case CompareOp::GreaterOrEqual:
        return u">=";
    case CompareOp::Contains:
        break;
    }
    return u"contains";
}

}  // namespace compareop
