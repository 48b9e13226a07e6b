// The smart pointer for one COM reference.
#pragma once

#include <wrl/client.h>

using Microsoft::WRL::ComPtr;
