#include "data/values/SpssFormat.h"
#include "tests/data/FormatTable.h"

#include <cmath>

// Texts as SPSS prints them, less the padding; dates count seconds from 1582-10-14. They differ
// where it prints asterisks, gives up seconds for a sign or shows a second as 60.

TEST(SpssFormat, showsNumbersAsSpssPrintsThem)
{
    expectTexts(spss::formatNumeric, R"(
        # Fixed numbers have no zero before the point and no negative zero
        F8.2 | 0 = .00 | -0.0 = .00 | 0.5 = .50 | -0.5 = -.50 | -0.001 = .00 | 1234.5 = 1234.50
        F8.0 | 0 = 0 | -0.001 = 0 || f8.1 | 7 = 7.0
        F18.16 | 0.234567890123456 = .2345678901234560
        F40.2 | 1e+20 = 100000000000000000000.00
        # Halves are rounded away from zero
        F8.2 | 0.125 = .13 | -0.125 = -.13 | 1.005 = 1.00 | 99.996 = 100.00
        F8.0 | 0.5 = 1 | 2.5 = 3 | -2.5 = -3 | 0.49999999999999994 = 0 | 4503599627370495.5 = 4503599627370496
        F8.1 | 1.15 = 1.1
        # Decimals give way until the number fits
        F8.2 | -1234.5 = -1234.50 | 1234567.89 = 1234568 | -1234567.89 = -1234568
        F8.2 | 12345678.25 = 12345678 | 999999.996 = 1000000 || F4.2 | -2.5 = -2.5
        F3.2 | 1 = 1.0 | -2.5 = -3 || F2.1 | 0.5 = .5 | -0.5 = -1
        DOLLAR10.2 | 1234567.89 = $1234567.9 || PCT6.1 | 1234.5 = 1235%
        # Numbers that never fit are written in full
        F4.2 | -1234.5 = -1234.50 || F2.0 | 12345 = 12345
        F8.2 | 123456789.25 = 123456789.25 | 1e+300 = 1e+300 | -1e+21 = -1e+21
        COMMA8.2 | 123456789.25 = 123,456,789.25 || DOLLAR8.2 | -1234567.89 = -$1,234,567.89
        PCT6.1 | 1234567.75 = 1234567.8% || N3 | 12345 = 12345 || N5 | 1e+22 = 1e+22
        # Grouping and currencies come where there is room
        COMMA8.2 | 1234.5 = 1,234.50 | -1234.5 = -1234.50 | 1234567.89 = 1234568
        COMMA12.2 | 1234567.89 = 1,234,567.89 | -1234567.89 = -1234567.89 | 100 = 100.00
        COMMA12.2 | 10000000000 = 10000000000
        COMMA9.0 | 1234567.89 = 1,234,568 | 12345678.25 = 12345678 || COMMA16.2 | 0.5 = .50
        DOT9.2 | 1234.5 = 1.234,50 | -0.5 = -,50 || DOT12.2 | 12345678.25 = 12345678,25
        DOLLAR10.0 | 1234.5 = $1,235 || DOLLAR10.2 | -1234.5 = -$1,234.50 | 0 = $.00
        DOLLAR8.2 | 1234.5 = $1234.50 || DOLLAR17.2 | 99.99 = $99.99 || PCT10.1 | 12.5 = 12.5%
        PCT8.2 | -0.5 = -.50% || CCA12.2 | -1234.5 = -1,234.50
        CCE12.2 | 1234567.89 = 1,234,567.89
        # Scientific numbers have three digits of exponent
        E10.3 | 0 = 0.000E+000 | 0.004 = 4.000E-003 | 1234567.89 = 1.235E+006
        E10.3 | -1234567.89 = -1.23E+006 || E12.5 | 99.995 = 9.99950E+001
        E12.4 | 25000000000 = 2.5000E+010 | 1e+300 = 1.0000E+300 || E6.0 | -5 = -5E+000
        # Restricted numbers are filled with zeros
        N5 | 0 = 00000 | 1 = 00001 | 1234.5 = 01235 | -3 = -0003 || N8.2 | 12.5 = 00012.50
        Z5 | 42 = 00042
        # Widths decide about the century
        DATE9 | 12876451200 = 28-OCT-90 || DATE10 | 12876451200 = 28-OCT-90
        DATE11 | 12876451200 = 28-OCT-1990 || DATE20 | 12876451200 = 28-OCT-1990
        DATE | 12876451200 = 28-OCT-1990 || ADATE8 | 12876451200 = 10/28/90
        ADATE10 | 12876451200 = 10/28/1990 || EDATE8 | 12876451200 = 28.10.90
        EDATE10 | 12876451200 = 28.10.1990 || SDATE8 | 12876451200 = 90/10/28
        SDATE10 | 12876451200 = 1990/10/28 || JDATE5 | 12876451200 = 90301
        JDATE7 | 12876451200 = 1990301 || QYR6 | 12876451200 = 4 Q 90
        QYR8 | 12876451200 = 4 Q 1990 || MOYR6 | 12876451200 = OCT 90
        MOYR8 | 12876451200 = OCT 1990 || WKYR8 | 12876451200 = 43 WK 90
        WKYR10 | 12876451200 = 43 WK 1990
        # Dates follow the calendar
        DATE11 | 13171161600 = 29-FEB-2000 | 13171247999.996 = 29-FEB-2000
        DATE11 | 13171248000 = 01-MAR-2000 | 86400 = 15-OCT-1582
        DATE9 | 13171161600 = 29-FEB-00 || JDATE5 | 13171161600 = 00060
        WKYR8 | 13171161600 = 9 WK 00 || EDATE10 | 10010304000 = 31.12.1899
        JDATE7 | 13828752000 = 2020366 || WKYR10 | 13828060800 = 52 WK 2020
        QYR8 | 13528857600 = 3 Q 2011 || ADATE10 | 265621593600 = 12/31/9999
        SDATE10 | 0 = 1582/10/14
        # Two digits of a year are not used where they would mislead
        DATE9 | 10010304000 = 31-DEC-1899
        ADATE8 | 11588140800 = 12/31/1949 | 11588227200 = 01/01/50
        JDATE5 | 14743900800 = 49365 | 14743987200 = 2050001 || MOYR6 | 265621593600 = DEC 9999
        # Date times show seconds and fractions where there is room
        DATETIME17 | 12876488595 = 28-OCT-1990 10:23
        DATETIME19 | 12876488595 = 28-OCT-1990 10:23
        DATETIME20 | 12876488595 = 28-OCT-1990 10:23:15 | 13928543999 = 28-FEB-2024 23:59:59
        DATETIME20 | 12876537599.9 = 28-OCT-1990 23:59:59
        DATETIME23.2 | 13928543999.25 = 28-FEB-2024 23:59:59.25
        DATETIME23.2 | 13171247999.996 = 01-MAR-2000 00:00:00.00
        DATETIME22.2 | 13928543999.25 = 28-FEB-2024 23:59:59.3
        DATETIME40.3 | 13171247999.996 = 29-FEB-2000 23:59:59.996
        YMDHMS16 | 13928543999 = 2024-02-28 23:59 || YMDHMS18 | 13928543999 = 2024-02-28 23:59
        YMDHMS19 | 13928543999 = 2024-02-28 23:59:59
        YMDHMS23.2 | 13928543999.5 = 2024-02-28 23:59:59.50
        # Times may exceed a day and keep their seconds
        TIME5 | 90607 = 25:10 || TIME6 | -3600 = -01:00
        TIME8 | 0 = 00:00:00 | 86399.999 = 23:59:59 | 90607 = 25:10:07 | -3600 = -01:00:00
        TIME8 | 360000 = 100:00:00 || TIME9 | -59.9 = -00:00:59
        TIME12.3 | 45296.789 = 12:34:56.789 || MTIME5 | 3599.999 = 59:59 | 86399 = 1439:59
        MTIME6 | -3600 = -60:00 || MTIME8.2 | 59.994 = 00:59.99 || DTIME8 | 90607 = 1 01:10
        DTIME11 | -3600 = -0 01:00:00 || DTIME14 | 273906 = 3 04:05:06 | -43200 = -0 12:00:00
        DTIME15 | 1000000000 = 11574 01:46:40 || DTIME16.2 | 45296.789 = 0 12:34:56.79
        # No second is ever shown as sixty
        TIME8 | 59.999 = 00:00:59 | -0.4 = 00:00:00
        TIME11.2 | 59.994 = 00:00:59.99 | 59.999 = 00:01:00.00 | 86399.999 = 24:00:00.00
        TIME11.2 | -0.4 = -00:00:00.40 || TIME10.1 | 3599.999 = 01:00:00.0
        MTIME8.2 | 59.999 = 01:00.00 || DTIME16.2 | 86399.999 = 1 00:00:00.00
        # Weekdays and months are names cut to the width
        WKDAY2 | 1 = SU || WKDAY3 | 2.7 = MON || WKDAY5 | 7 = SATUR
        WKDAY9 | 4 = WEDNESDAY | 3 = TUESDAY | 0 = 0 | 8 = 8 || MONTH3 | 12 = DEC
        MONTH5 | 1 = JANUA || MONTH9 | 9 = SEPTEMBER | 13 = 13 | -1.5 = -1.5
        # What is beyond the calendar is a plain number
        DATE11 | -1 = -1 | 265621680000 = 265621680000 | inf = inf
        DATETIME20 | 1e+300 = 1e+300 || QYR8 | -86400.5 = -86400.5 || TIME8 | 1e+20 = 1e+20
        DTIME15 | -1e+20 = -1e+20 || WKDAY9 | 1e+300 = 1e+300 || F8.2 | -inf = -inf
        E10.3 | inf = inf
        # Unknown formats show the shortest text
        F | 0.25 = 0.25 || XYZ8.2 | 1.5 = 1.5 || F8.2.1 | 1.5 = 1.5 || F8.2x | 1.5 = 1.5
        F99999999999.2 | 1.5 = 1.5 || DATE-11 | 1.5 = 1.5 || 8.2 | 1.5 = 1.5 || RB8 | 1.5 = 1.5
        A8 | -2 = -2)");
    EXPECT_EQ(spss::formatNumeric(0.1, ""), "0.1");
}

TEST(SpssFormat, tellsItsDecimals)
{
    for (const auto& [format, decimals] :
         {std::pair("F9.2", 2), std::pair("DATETIME23.2", 2), std::pair("IB4.1", 1),
          std::pair("DATE11", 0), std::pair("F40.16", 16), std::pair("", 0)}) {
        EXPECT_EQ(spss::decimalsOf(format), decimals) << format;
    }
}

TEST(SpssFormat, MissingIsAPointUnderEveryFormat)
{
    for (const char* format : {"", "F8.2", "E10.3", "N5", "DATE11", "DATETIME23.2", "TIME8",
                               "DTIME14", "WKDAY9", "MONTH3", "XYZ"}) {
        EXPECT_EQ(spss::formatNumeric(std::nan(""), format), ".") << format;
    }
}
