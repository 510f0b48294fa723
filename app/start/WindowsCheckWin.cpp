#include "app/start/WindowsCheck.h"

#include <windows.h>

bool isSupportedSystem()
{
    OSVERSIONINFOEXW wanted{};
    wanted.dwOSVersionInfoSize = sizeof wanted;
    wanted.wProductType = VER_NT_WORKSTATION;
    const DWORDLONG condition = VerSetConditionMask(0, VER_PRODUCT_TYPE, VER_EQUAL);
    return VerifyVersionInfoW(&wanted, VER_PRODUCT_TYPE, condition) != FALSE;
}
