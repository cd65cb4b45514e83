#include "core/platform/LocalTime.h"

std::tm LocalTime(std::time_t moment)
{
    std::tm local = {};
    return ::localtime_r(&moment, &local) == nullptr ? std::tm{} : local;
}
