// The push button: a gradient face or a picture, with a centred caption.
#pragma once

#include <memory>

#include "skin/skin_item.h"

class CSkinButton : public CSkinItem {
public:
    /// A strip of four equal frames side by side: normal, hover, pressed, disabled. Without the file there is
    /// no picture.
    void SetPicture(LPCWSTR path);
    /// A framed button has a face; one that is not framed shows its picture only.
    void SetFramed(bool framed) { m_framed = framed; }

protected:
    void Paint(HDC dc, CSize size) override;

private:
    void PaintPicture(Gdiplus::Graphics& graphics, CSize size) const;
    void PaintCaption(Gdiplus::Graphics& graphics, CSize size) const;

    bool m_framed = true;
    std::unique_ptr<Gdiplus::Image> m_picture;
};
