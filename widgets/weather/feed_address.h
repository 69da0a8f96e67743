// The addresses that weather is asked from.
#pragma once

#include <string>
#include <string_view>

#include "widgets/weather/places.h"

namespace varnel {

// The feed of one place: the endpoint (a host name, or an address up to its path; "http://" is put
// before one without a scheme, final slashes are dropped), the feed's path and the location code,
// which is inserted as it stands.
std::wstring FeedAddress(std::wstring_view endpoint, std::wstring_view code);

// The live source's forecast of current conditions and three days in degrees Fahrenheit at a
// point; `address` is completed like an endpoint.
std::wstring LiveAddress(std::wstring_view address, const Coordinates& point);

}  // namespace varnel
