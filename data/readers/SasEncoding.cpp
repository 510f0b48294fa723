#include "data/readers/Sas7bdatLayout.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct Encoding
{
    int code;
    std::string_view name;
};

// Names that glibc's iconv knows where it knows the set at all. EUC-CN files hold characters of its
// superset GB18030; 138 is Windows' Shift-JIS.
constexpr std::array encodings{
    Encoding{20, "UTF-8"},
    Encoding{28, "US-ASCII"},
    Encoding{29, "ISO-8859-1"},
    Encoding{30, "ISO-8859-2"},
    Encoding{31, "ISO-8859-3"},
    Encoding{32, "ISO-8859-4"},
    Encoding{33, "ISO-8859-5"},
    Encoding{34, "ISO-8859-6"},
    Encoding{35, "ISO-8859-7"},
    Encoding{36, "ISO-8859-8"},
    Encoding{37, "ISO-8859-9"},
    Encoding{39, "ISO-8859-11"},
    Encoding{40, "ISO-8859-15"},
    Encoding{41, "CP437"},
    Encoding{42, "CP850"},
    Encoding{43, "CP852"},
    Encoding{44, "CP857"},
    Encoding{45, "CP858"},
    Encoding{46, "CP862"},
    Encoding{47, "CP864"},
    Encoding{48, "CP865"},
    Encoding{49, "CP866"},
    Encoding{50, "CP869"},
    Encoding{51, "CP874"},
    Encoding{52, "CP921"},
    Encoding{53, "CP922"},
    Encoding{54, "CP1129"},
    Encoding{55, "CP720"},
    Encoding{56, "CP737"},
    Encoding{57, "CP775"},
    Encoding{58, "CP860"},
    Encoding{59, "CP863"},
    Encoding{60, "WINDOWS-1250"},
    Encoding{61, "WINDOWS-1251"},
    Encoding{62, "WINDOWS-1252"},
    Encoding{63, "WINDOWS-1253"},
    Encoding{64, "WINDOWS-1254"},
    Encoding{65, "WINDOWS-1255"},
    Encoding{66, "WINDOWS-1256"},
    Encoding{67, "WINDOWS-1257"},
    Encoding{68, "WINDOWS-1258"},
    Encoding{69, "MACINTOSH"},
    Encoding{70, "MACARABIC"},
    Encoding{71, "MACHEBREW"},
    Encoding{72, "MACGREEK"},
    Encoding{73, "MACTHAI"},
    Encoding{75, "MACTURKISH"},
    Encoding{76, "MAC-UK"},
    Encoding{118, "CP950"},
    Encoding{119, "EUC-TW"},
    Encoding{123, "BIG5"},
    Encoding{125, "GB18030"},
    Encoding{126, "CP936"},
    Encoding{134, "EUC-JP"},
    Encoding{136, "CP949"},
    Encoding{137, "CP932"},
    Encoding{138, "CP932"},
    Encoding{140, "EUC-KR"},
    Encoding{141, "CP949"},
    Encoding{142, "CP949"},
    Encoding{163, "MAC-IS"},
    Encoding{167, "ISO-2022-JP"},
    Encoding{168, "ISO-2022-KR"},
    Encoding{169, "ISO-2022-CN"},
    Encoding{172, "ISO-2022-CN-EXT"},
    Encoding{205, "GB18030"},
    Encoding{227, "ISO-8859-14"},
    Encoding{242, "ISO-8859-13"},
    Encoding{246, "MAC-CYRILLIC"},
    Encoding{248, "SHIFT_JISX0213"},
};

}  // namespace

std::string sasEncodingName(int code)
{
    const auto found = std::find_if(encodings.begin(), encodings.end(),
                                    [&](const Encoding& one) { return one.code == code; });
    return found == encodings.end() ? std::string() : std::string(found->name);
}
