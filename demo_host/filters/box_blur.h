// The mean over a square around each pixel.
#pragma once

#include "demo_host/filters/frame.h"

/// A blurred copy: each pixel becomes the mean of the (2 * radius + 1)^2 around it, as far as they lie in the picture.
Frame BoxBlur(const FrameView& picture, int radius);
