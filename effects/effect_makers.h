// The maker functions of the effect dialogs, each at the end of its dialog's source.
#pragma once

#include <memory>

#include <afxwin.h>

std::unique_ptr<CDialog> MakeAutoContrastDlg();
std::unique_ptr<CDialog> MakeAutoIntensityDlg();
std::unique_ptr<CDialog> MakeAutoLevelDlg();
std::unique_ptr<CDialog> MakeBrightnessDlg();
std::unique_ptr<CDialog> MakeColorDlg();
std::unique_ptr<CDialog> MakeDeblockingDlg();
std::unique_ptr<CDialog> MakeEdgeEnhanceDlg();
std::unique_ptr<CDialog> MakeAgingDlg();
std::unique_ptr<CDialog> MakeBumpMapDlg();
std::unique_ptr<CDialog> MakeDizzyDlg();
std::unique_ptr<CDialog> MakeFireDlg();
std::unique_ptr<CDialog> MakeGlassTileDlg();
std::unique_ptr<CDialog> MakeHologramDlg();
std::unique_ptr<CDialog> MakeLensDlg();
std::unique_ptr<CDialog> MakeLightningDlg();
std::unique_ptr<CDialog> MakeMazeDlg();
std::unique_ptr<CDialog> MakeMotionBlurDlg();
std::unique_ptr<CDialog> MakeMotionEmbossDlg();
std::unique_ptr<CDialog> MakeMotionMosaicDlg();
std::unique_ptr<CDialog> MakeMotionScanDlg();
std::unique_ptr<CDialog> MakeParticlesDlg();
std::unique_ptr<CDialog> MakeRainDlg();
std::unique_ptr<CDialog> MakeStreakDlg();
std::unique_ptr<CDialog> MakeWaveDlg();
std::unique_ptr<CDialog> MakeEmbossDlg();
std::unique_ptr<CDialog> MakeGammaCorrectionDlg();
std::unique_ptr<CDialog> MakeMosaicDlg();
std::unique_ptr<CDialog> MakeUnsharpMaskDlg();
std::unique_ptr<CDialog> MakeVideoRotationDlg();
std::unique_ptr<CDialog> MakeAudioChorusDlg();
