#include "app/WindowsCheck.h"

bool isSupportedSystem()
{
    return true;
}
