// What the demo host plays: a generated scene, or a picture from a file.
#pragma once

#include <memory>
#include <string>

#include <windows.h>

#include "demo_host/filters/frame.h"

class IClip {
public:
    virtual ~IClip() = default;
    virtual SIZE VideoSize() const = 0;
    /// Of the frames, which may be smaller.
    virtual SIZE FrameSize() const = 0;
    /// How long it plays; at least 1.
    virtual unsigned Milliseconds() const = 0;
    /// The frame at a time from the clip's start; the clip plays in a loop.
    virtual const Frame& FrameAt(unsigned milliseconds) = 0;
};

std::unique_ptr<IClip> MakeSceneClip();
/// Any picture that GDI+ reads; an animated GIF plays. Null when the file can't be read.
std::unique_ptr<IClip> LoadClip(const std::wstring& file);
