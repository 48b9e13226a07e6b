// Titles, descriptions and spellings are what hosts and users know; they stay as they are.
#include "effects/effect_catalogue.h"

#include <array>

#include "effect_settings/effect_filters.h"

namespace {

constexpr std::array<EffectInfo, kLastEffectId> kEffects = {{
    {EffectId::AutoContrast, L"Auto Contrast Setting", 500, 420, false, ChainKind::Video, CLSID_EffectAutoContrast,
     L"Enable Auto Contrast Effect, will performs color leveling at the luminance (grayscale) level, makes "
     L"the dark values darker and the light values lighter, which automatically enhances shadows and "
     L"brightens."},
    {EffectId::AutoIntensity, L"Auto Intensity Setting", 500, 430, false, ChainKind::Video, CLSID_EffectAutoIntensity,
     L"Enable Auto Intensity Effect, will performs color leveling on the RGB channel(the sum of the R, G, "
     L"and B channels), makes the dark values darker and the light values lighter, which automatically "
     L"enhances shadows and brightens."},
    {EffectId::AutoLevel, L"Auto Level Setting", 500, 430, false, ChainKind::Video, CLSID_EffectAutoLevel,
     L"Enable Auto Level Effect, will performs color leveling on the individual R, G and B channels, "
     L"treating each of the R, G and B channels as a separate entity, makes the dark values darker and the "
     L"light values lighter, which automatically enhances shadows and brightens."},
    {EffectId::Brightness, L"Brightness Settings", 560, 500, false, ChainKind::Video, CLSID_EffectBrightness,
     L"Enable Video Brightness Effect, will detects any object that moves and changes its brightness."},
    {EffectId::Color, L"Color Settings", 500, 630, true, ChainKind::Video, CLSID_EffectColor,
     L"Enable Video Color Effect, will provides the ability to change some color attributes of the video, "
     L"include the video hue, saturation, brightness and contrast."},
    {EffectId::Deblocking, L"Deblocking Settings", 500, 580, false, ChainKind::Video, CLSID_EffectDeblocking,
     L"Enable Video Deblocking Effect, will performs deblocking on the video."},
    {EffectId::EdgeEnhance, L"Edge Enhance Settings", 500, 460, false, ChainKind::Video, CLSID_EffectEdgeEnhance,
     L"Enable Edge Enhance Effect, will performs edge enhancement on the video."},
    {EffectId::Aging, L"Aging Settings", 800, 630, true, ChainKind::Video, CLSID_EffectAging,
     L"Enable Video Aging Effect, will gives the video the look and feel of an old style movie."},
    {EffectId::BumpMap, L"Bump Map Settings", 500, 680, true, ChainKind::Video, CLSID_EffectBumpMap,
     L"Enable Video Bumpmap Effect, will embeds the texture of an image or frame into the movie frames."},
    {EffectId::Dizzy, L"Dizzy Settings", 500, 585, true, ChainKind::Video, CLSID_EffectDizzy,
     L"Enable Video Dizzy Effect, will rotates, zooms and blurs video frames to create a dizziness-like "
     L"effect."},
    {EffectId::Fire, L"Fire Settings", 560, 645, false, ChainKind::Video, CLSID_EffectFire,
     L"Enable Video Fire Effect, will draws flames around a moving object on the video."},
    {EffectId::GlassTile, L"Glass Tile Settings", 500, 560, true, ChainKind::Video, CLSID_EffectGlassTile,
     L"Enable Video Glass Tile Effect, will create a stained glass effect on the video."},
    {EffectId::Hologram, L"Hologram Settings", 560, 590, false, ChainKind::Video, CLSID_EffectHologram,
     L"Enable Video Hologram Effect, will draws a holographic-like a shadow of a moving object on the "
     L"video."},
    {EffectId::Lens, L"Lens Settings", 500, 540, true, ChainKind::Video, CLSID_EffectLens,
     L"Enable Video Lens Effect, will adds a fish eye-like effect on the video."},
    {EffectId::Lightning, L"Lightning Settings", 560, 500, false, ChainKind::Video, CLSID_EffectLightning,
     L"Enable Video Lighting Effect, will draws lightning sparks around moving objects on the video."},
    {EffectId::Maze, L"Maze Settings", 500, 540, true, ChainKind::Video, CLSID_EffectMaze,
     L"Enable Video Maze Effect, will distorts the video into a crystal maze."},
    {EffectId::MotionBlur, L"Motion Blur Settings", 560, 500, false, ChainKind::Video, CLSID_EffectMotionBlur,
     L"Enable Video Motion Blur Effect, will creates a motion blur effect for moving objects on the video."},
    {EffectId::MotionEmboss, L"Motion Emboss Settings", 560, 620, false, ChainKind::Video, CLSID_EffectMotionEmboss,
     L"Enable Video Motion Emboss Effect, will applies an Emboss effect to moving objects on the video."},
    {EffectId::MotionMosaic, L"Motion Mosaic Settings", 560, 540, false, ChainKind::Video, CLSID_EffectMotionMosaic,
     L"Enable Video Motion Mosaic Effect, will applies a mosaic effect to moving objects on the video."},
    {EffectId::MotionScan, L"Motion Scan Settings", 500, 540, true, ChainKind::Video, CLSID_EffectMotionScan,
     L"Enable Video Motion Scan Effect, will scan one line per frame and draw it to the destination on the "
     L"video."},
    {EffectId::Particles, L"Particles Settings", 500, 460, false, ChainKind::Video, CLSID_EffectParticles,
     L"Enable Video Particles Effect, will distorts objects into small particles when it moves, then joins "
     L"the particles to reform the objects when it stops moving."},
    {EffectId::Rain, L"Rain Settings", 500, 560, true, ChainKind::Video, CLSID_EffectRain,
     L"Enable Video Rain Effect, will adds rain drops to the video."},
    {EffectId::Streak, L"Streak Settings", 500, 400, false, ChainKind::Video, CLSID_EffectStreak,
     L"Enable Video Streak Effect, will shows moving objects as they are traced in slow motion on the "
     L"video."},
    {EffectId::Wave, L"Wave Settings", 560, 470, false, ChainKind::Video, CLSID_EffectWave,
     L"Enable Video Wave Effect, will makes waves around moving objects on the video."},
    {EffectId::Emboss, L"Emboss Settings", 500, 600, true, ChainKind::Video, CLSID_EffectEmboss,
     L"Enable Video Emboss Effect."},
    {EffectId::GammaCorrection, L"Gamma Correction Settings", 500, 460, false, ChainKind::Video,
     CLSID_EffectGammaCorrection, L"Enable Gamma Correction Effect, will performs gamma correction to the video."},
    {EffectId::Mosaic, L"Mosaic Settings", 500, 520, true, ChainKind::Video, CLSID_EffectMosaic,
     L"Enable Video Mosaic Effect to be applied to a selected area."},
    {EffectId::UnsharpMask, L"Unsharp Mask Settings", 560, 500, false, ChainKind::Video, CLSID_EffectUnsharpMask,
     L"Enable Video Unsharp Mask Effect will performs a sharpening effect on the video."},
    {EffectId::VideoRotation, L"Video Rotation Settings", 500, 500, false, ChainKind::Video, CLSID_EffectVideoRotation,
     L"If checked, will rotate the selected video."},
    {EffectId::AudioChorus, L"Audio Chorus Settings", 500, 680, false, ChainKind::Audio, CLSID_EffectAudioChorus,
     L"Enable Audio Chorus Effect, makes one instrument sound like many instruments are being played. It "
     L"adds some thickness to the sound."},
}};

constexpr bool RowsAreInOrder() {
    for (std::size_t row = 0; row < kEffects.size(); ++row) {
        if (static_cast<std::size_t>(kEffects[row].id) != row + 1) return false;
    }
    return true;
}
static_assert(RowsAreInOrder());

}  // namespace

bool IsKnownEffect(EffectId id) {
    return static_cast<std::int32_t>(id) >= kFirstEffectId && static_cast<std::int32_t>(id) <= kLastEffectId;
}

const EffectInfo& EffectInfoOf(EffectId id) { return kEffects[static_cast<std::size_t>(id) - 1]; }
