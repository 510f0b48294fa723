#include "samples/TextEncoding.h"

#include <iconv.h>
#include <stdexcept>

namespace samples {

std::string toWindows1252(const std::string& text)
{
    static iconv_t converter = iconv_open("WINDOWS-1252", "UTF-8");
    std::string source = text;  // iconv takes it as changeable
    std::string target(text.size(), '\0');
    char* from = source.data();
    char* to = target.data();
    std::size_t fromLeft = source.size();
    std::size_t toLeft = target.size();
    if (iconv(converter, &from, &fromLeft, &to, &toLeft) != 0) {
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
        throw std::runtime_error("not a text that Windows-1252 can hold: " + text);
    }
    target.resize(target.size() - toLeft);
    return target;
}

}  // namespace samples
