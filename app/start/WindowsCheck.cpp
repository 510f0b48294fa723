#include "app/start/WindowsCheck.h"

bool isSupportedSystem()
{
    return true;
}
