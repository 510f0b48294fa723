#include "data/readers/DistinctNames.h"

#include <unordered_map>
#include <unordered_set>

std::vector<std::size_t> makeDistinct(std::vector<std::string>& names)
{
    std::unordered_set<std::string> taken(names.begin(), names.end());
    std::vector<std::size_t> changed;
    if (taken.size() == names.size()) {
        return changed;
    }
    std::unordered_map<std::string, std::size_t> times;
    for (std::size_t i = 0; i < names.size(); ++i) {
        std::size_t& time = times[names[i]];
        if (++time == 1) {
            continue;
        }
        std::string distinct = names[i] + '_' + std::to_string(time);
        while (!taken.insert(distinct).second) {
            distinct = names[i] + '_' + std::to_string(++time);
        }
        names[i] = std::move(distinct);
        changed.push_back(i);
    }
    return changed;
}
