// The Gamma Correction dialog, with a preview that follows it.
#include <cmath>

#include "effect_settings/preview_host.h"

using namespace effect_settings;

struct Gamma : PreviewFilter<IEffectGammaCorrection> {
    // What the user sets comes here, with every move of a control...
    HRESULT STDMETHODCALLTYPE SetGammaParams(GammaParams params) override {
        exponent = params.enabled ? 100.0 / params.value : 1;
        return S_OK;
    }
    // ...and shows in the preview: a band of grey that moves.
    void Draw(HDC dc, const RECT& area, double seconds) override {
        for (RECT line = area; line.left < area.right; ++line.left) {
            const int grey = static_cast<int>(255 * std::pow(std::fmod(line.left / 500.0 + seconds / 4, 1), exponent));
            Fill(dc, line, RGB(grey, grey, grey));
        }
    }
    double exponent = 1;
};

int main() {
    Gamma filter;
    PreviewHost host(filter);
    const VideoSize video = {640, 480};
    const FrameSize frame = {640, 480};
    GammaCorrectionSettings gamma;  // The effect's defaults; after OK what the user has set.
    const Result result = ShowSettings(&host, video, frame, gamma);
    // The dialog has taken the filter out of the chain. After OK it goes back, with what the user has set.
    if (result == Result::Accepted) host.Keep(gamma, video, frame);
    return result == Result::NotCreated ? 1 : 0;
}
