#include "data/values/StataFormat.h"
#include "tests/data/FormatTable.h"

#include <cmath>
#include <string>

TEST(StataFormat, showsNumbersAsStataPrintsThem)
{
    expectTexts(stata::formatNumeric, R"(
        # General numbers show what the width holds
        %9.0g | 0 = 0 | -0.0 = 0 | 1000 = 1000 | 1.4142135623730951 = 1.414214
        %9.0g | 14142.1356 = 14142.14 | 1234567.891 = 1234568 | -1234567.891 = -1234568 | 0.5 = .5
        %9.0g | -0.5 = -.5 | 0.125 = .125 | 0.123456789 = .1234568 | 1.234e-05 = .0000123
        %10.0g | 3.141592653589793 = 3.1415927 || %8.0g | 32740 = 32740
        %12.0g | 2147483620 = 2147483620 | -2147483647 = -2147483647 || %-9.0g | 12 = 12
        %20.0g | 0.1 = .1 || %9,0g | 0.25 = ,25 || %2.0g | 45 = 45 || %4.0g | 123456 = 123456
        %3.0g | 1.5 = 1.5
        # General numbers take an exponent where digits do not fit
        %9.0g | 10000000 = 1.00e+07 | 9999999.6 = 1.00e+07 | 1234567891 = 1.23e+09
        %9.0g | -12345678912 = -1.23e+10 | 1.234e-06 = 1.23e-06
        %10.0g | 123456789 = 1.235e+08 | 1e+100 = 1.00e+100
        %10.0g | -1.7976931348623157e+308 = -1.80e+308 | 2.2250738585072014e-308 = 2.23e-308
        %5.0g | 1e+300 = 1e+300
        # General numbers with digits asked for never lose their integer part
        %9.3g | 1234.5678 = 1235 | 12.3456 = 12.3 | 0.0012345 = .00123 || %9.1g | 0.0999 = .1
        %9.2g | 1234560000000 = 1.2e+12
        # Grouping gives way under general formats
        %8.0gc | 15906 = 15,906
        %9.0gc | 1234567.8 = 1,234,568 | -1234567.8 = -1234568 | 12345.678 = 12,345.68
        %9.0gc | -12345.678 = -12,345.7 | 999 = 999
        # Fixed and exponent forms are kept whatever the width
        %9.2f | 0 = 0.00 | 0.5 = 0.50 | -1.25 = -1.25 | 10000000 = 10000000.00
        %9.0f | 2.6 = 3 || %-9.2f | 1000 = 1000.00
        %16.0f | 1000000000000000 = 1000000000000000 || %12.2fc | 1234567.891 = 1,234,567.89
        %8.0fc | -1234567 = -1,234,567 | -123 = -123 || %9,2f | 1234.5 = 1234,50
        %12,2fc | 1234567.891 = 1.234.567,89 || %09.2f | 1.414 = 000001.41 | -1.5 = -00001.50
        %05.0f | 1234567 = 1234567 || %9.2e | 1000 = 1.00e+03
        %10.3e | -0.000123456 = -1.235e-04
        # Default layouts of dates
        %td | 0 = 01jan1960 | -1 = 31dec1959 | -0.5 = 31dec1959 | 14669.9 = 29feb2000
        %td | -21855 = 01mar1900 | -679350 = 01jan0100 | 2936549 = 31dec9999
        %d | 366 = 01jan1961 || %-td | 0 = 01jan1960
        %tc | 0 = 01jan1960 00:00:00 | -1 = 31dec1959 23:59:59
        %tc | 1267487999999 = 29feb2000 23:59:59
        %tC | 500 = 01jan1960 00:00:00 | 1000 = 01jan1960 00:00:01
        %tw | 0 = 1960w1 | 51 = 1960w52 | -1 = 1959w52
        %tm | 0 = 1960m1 | 731 = 2020m12 | -1 = 1959m12 || %tq | 7 = 1961q4 | -1 = 1959q4
        %th | 1 = 1960h2 | -3 = 1958h2 || %ty | 1960 = 1960 | 100 = 0100
        # Detail codes of days
        %tdD_m_Y | 21915 = 01 Jan 20 || %tdCCYY-NN-DD | 21915 = 2020-01-01
        %tdnn/dd/YY | 21915 = 1/1/20 || %tdDD/NN/CCYY | -22221 = 28/02/1899
        %tdDayname,_Month_dd,_CCYY | 21915 = Wednesday, January 1, 2020
        %tdDa_Day_DAYNAME | 21915 = We Wed Wednesday || %tdday-da | 21915 = wed-we
        %tdmon.month.MON.MONTH | 21915 = jan.january.JAN.JANUARY
        %tdM_d,_CY | 1645 = July 3, 1964 || %tdDlCY | 1645 = 03jul1964
        %dN/D/Y | 1645 = 07/03/64 || %tdCCYY.JJJ | 59 = 1960.060 || %tdjjj\j | 59 = 60\60
        %tdyy_cc | 14669 = 0 20 || %tdCCYY!Qq!Hh!WWW | 16436 = 2004Q4H2W52 || %tdww+q | 8 = 21
        %td_DD_ | 0 = 01 || %tdHH:MM | 0 = 00:00
        # Detail codes of periods
        %tmMon_CCYY | 731 = Dec 2020 || %tmNN/YY | -1 = 12/59 || %tqCCYY!Qq | 7 = 1961Q4
        %twCCYY-WW | 1 = 1960-02 || %thh!H_CCYY | 1 = 2H 1960 || %tyYY | 1999 = 99
        # Detail codes of times
        %tcHH:MM:SS | 86399999 = 23:59:59 | 59999 = 00:00:59
        %tcHH:MM:SS.sss | 3661007 = 01:01:01.007 | -1 = 23:59:59.999
        %tc.s_.ss_.sss | 789 = .7 .78 .789 || %tchh:MM_am | 0 = 12:00 am | 43200000 = 12:00 pm
        %tcHh:MM_a.m. | 46800000 = 01:00 p.m. || %tchH:mm:ss_AM | 3661000 = 1:1:1 AM
        %tcHHMM_A.M. | 82800000 = 2300 P.M.
        %tcDDmonCCYY_HH:MM:SS | 1267401600000 = 29feb2000 00:00:00
        # What is beyond the calendar is a plain number
        %td | -679351 = -679351 | 2936550 = 2936550 | inf = inf || %tc | 1e+18 = 1e+18
        %tm | -1e+300 = -1e+300 || %tw | 2000000 = 2000000 || %tq | -20000 = -20000
        %ty | 99 = 99 | 67596 = 67596 || %9.0g | -inf = -inf
        # Unknown formats show the shortest text
        % | 0.5 = 0.5 || 9.0g | 0.5 = 0.5 || %9s | 42 = 42 || %-20s | 0.1 = 0.1
        %21x | 1.5 = 1.5 || %16H | 1.5 = 1.5 || %f | 1.5 = 1.5 || %9.2 | 1.5 = 1.5
        %9.2fx | 1.5 = 1.5 || %99999999999.2f | 1.5 = 1.5 || %-1000000.2f | 1.5 = 1.5
        %t | 3 = 3 || %tbsimple | 3 = 3 || %tdZZ | 3 = 3 || %td! | 3 = 3)");
    EXPECT_EQ(stata::formatNumeric(0.5, ""), "0.5");
    EXPECT_EQ(stata::formatNumeric(3, "%td" + std::string(5000, 'M')), "3");
}

TEST(StataFormat, tellsItsDecimals)
{
    for (const auto& [format, decimals] :
         {std::pair("%9.2f", 2), std::pair("%-12,3fc", 3), std::pair("%09.1f", 1),
          std::pair("%9.0g", 0), std::pair("%tc.ss", 0), std::pair("%20s", 0), std::pair("", 0)}) {
        EXPECT_EQ(stata::decimalsOf(format), decimals) << format;
    }
}

TEST(StataFormat, MissingIsAPointUnderEveryFormat)
{
    for (const char* format : {"", "%9.0g", "%9.2f", "%td", "%tcHH:MM", "%ty", "%9s", "%tdZZ"}) {
        EXPECT_EQ(stata::formatNumeric(std::nan(""), format), ".") << format;
    }
}
