// The push button: a gradient face or a picture, with a centred caption.
#pragma once

#include <string>

#include "skin/skin_item.h"

class CSkinButton : public CSkinItem {
public:
    /// A strip of four equal frames side by side: normal, hover, pressed, disabled. The file is looked for
    /// once, here; without it the button has no picture.
    void SetPicture(LPCWSTR path);
    /// A framed button has a face; one that is not framed shows its picture only.
    void SetFramed(bool framed) { m_framed = framed; }
    /// What a button without a caption is called. A literal.
    void SetSpokenName(LPCWSTR name) { m_spokenName = name; }
    ControlFacts Facts() const override;

protected:
    void Paint(HDC dc, CSize size) override;

private:
    void PaintFace(HDC dc, CSize size) const;
    void PaintPicture(HDC dc, CSize size) const;
    /// The picture of the only button that has one, the close button, in the system's own colours.
    static void PaintCross(HDC dc, CSize size);
    void PaintCaption(HDC dc, CSize size) const;

    bool m_framed = true;
    LPCWSTR m_spokenName = L"";
    CString m_pictureFile;
    Gdiplus::Bitmap* m_picture = nullptr;  // Shared.
};
