// The heading of a group of controls: a text and a thin line from it to the right edge, or the line alone.
#pragma once

#include "skin/skin_static.h"

class CSkinHeading : public CSkinStatic {
protected:
    void Paint(HDC dc, CSize size) override;
};
