// GDI+ over a frame's own pixels.
#pragma once

#include "demo_host/clip.h"
#include "demo_host/gdi_plus.h"

class CFrameBitmap : public Gdiplus::Bitmap {
public:
    explicit CFrameBitmap(Frame& frame)
        : Bitmap(frame.width, frame.height, frame.width * 4, PixelFormat32bppRGB,
                 reinterpret_cast<BYTE*>(frame.pixels.data())) {}
};
