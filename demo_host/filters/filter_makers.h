// The makers of the filters, each at the end of its filter's source. They give the new object's one reference.
#pragma once

#include "demo_host/filters/filter.h"

IDemoFilter* MakeAutoContrastFilter(TraceSink trace);
IDemoFilter* MakeAutoIntensityFilter(TraceSink trace);
IDemoFilter* MakeAutoLevelFilter(TraceSink trace);
IDemoFilter* MakeBrightnessFilter(TraceSink trace);
IDemoFilter* MakeColorFilter(TraceSink trace);
IDemoFilter* MakeDeblockingFilter(TraceSink trace);
IDemoFilter* MakeEdgeEnhanceFilter(TraceSink trace);
IDemoFilter* MakeAgingFilter(TraceSink trace);
IDemoFilter* MakeBumpMapFilter(TraceSink trace);
IDemoFilter* MakeDizzyFilter(TraceSink trace);
IDemoFilter* MakeFireFilter(TraceSink trace);
IDemoFilter* MakeGlassTileFilter(TraceSink trace);
IDemoFilter* MakeHologramFilter(TraceSink trace);
IDemoFilter* MakeLensFilter(TraceSink trace);
IDemoFilter* MakeLightningFilter(TraceSink trace);
IDemoFilter* MakeMazeFilter(TraceSink trace);
IDemoFilter* MakeMotionBlurFilter(TraceSink trace);
IDemoFilter* MakeMotionEmbossFilter(TraceSink trace);
IDemoFilter* MakeMotionMosaicFilter(TraceSink trace);
IDemoFilter* MakeMotionScanFilter(TraceSink trace);
IDemoFilter* MakeParticlesFilter(TraceSink trace);
IDemoFilter* MakeRainFilter(TraceSink trace);
IDemoFilter* MakeStreakFilter(TraceSink trace);
IDemoFilter* MakeWaveFilter(TraceSink trace);
IDemoFilter* MakeEmbossFilter(TraceSink trace);
IDemoFilter* MakeGammaCorrectionFilter(TraceSink trace);
IDemoFilter* MakeMosaicFilter(TraceSink trace);
IDemoFilter* MakeUnsharpMaskFilter(TraceSink trace);
IDemoFilter* MakeVideoRotationFilter(TraceSink trace);
IDemoFilter* MakeAudioChorusFilter(TraceSink trace);
