// A host in twenty lines: the Gamma Correction dialog, with a preview that follows it.
#include <cmath>
#include <cstdio>

#include "effect_settings/preview_host.h"

using namespace effect_settings;

// The filter takes what the user sets; the preview draws with it. Here that is a moving band of grey.
struct Gamma : PreviewFilter<IEffectGammaCorrection> {
    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) override {
        exponent = params.enabled ? 100.0 / params.value : 1;
        return S_OK;
    }
    void Draw(HDC dc, const RECT& area, double seconds) override {
        for (RECT line = area; line.left < area.right; ++line.left) {
            const int grey = static_cast<int>(255 * std::pow(std::fmod(line.left / 500.0 + seconds / 4, 1), exponent));
            SetDCBrushColor(dc, RGB(grey, grey, grey));
            FillRect(dc, &line, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        }
    }
    double exponent = 1;
};

int main() {
    Gamma filter;
    PreviewHost host(filter);
    GammaCorrectionSettings gamma;  // Holds the effect's defaults, and picks the dialog.
    const Result result = ShowSettings(&host, VideoSize{640, 480}, FrameSize{640, 480}, gamma);
    std::printf("%s: gamma %d\n", result == Result::Accepted ? "OK" : "nothing changed", gamma.value);
    return result == Result::NotCreated ? 1 : 0;
}
