#pragma once

#include <array>

namespace vantrell::bench
{

/// A setting of an effect; drawn between its limits.
struct Parameter {
    const char *id;
    const char *name;
    double smallest, largest;
    bool isPoint = false;
};

/// A filter as an editing system writes it; parameters without an id are left out.
struct Effect {
    const char *name;
    const char *id;
    const char *category;
    const char *type;
    std::array<Parameter, 5> parameters;
};

inline constexpr std::array<Effect, 7> kVideoEffects{{
    {"Basic Motion",
     "basic",
     "motion",
     "motion",
     {{{"scale", "Scale", 0, 1000},
       {"rotation", "Rotation", -8640, 8640},
       {"center", "Center", -1, 1, true},
       {"centerOffset", "Anchor Point", -1, 1, true},
       {"antiflicker", "Anti-flicker Filter", 0, 1}}}},
    {"Opacity", "opacity", "motion", "motion", {{{"opacity", "opacity", 0, 100}}}},
    {"Crop",
     "crop",
     "motion",
     "motion",
     {{{"left", "left", 0, 100},
       {"right", "right", 0, 100},
       {"top", "top", 0, 100},
       {"bottom", "bottom", 0, 100},
       {"edgefeather", "edgefeather", 0, 100}}}},
    {"Gaussian Blur",
     "Gaussian Blur",
     "Blur",
     "filter",
     {{{"channel", "Channel", 0, 6}, {"radius", "Radius", 0, 100}}}},
    {"Color Corrector 3-way",
     "Color Corrector 3-way",
     "Color Correction",
     "filter",
     {{{"sat", "Saturation", 0, 200},
       {"blacks", "Blacks", 0, 255},
       {"mids", "Mids", 0, 255},
       {"whites", "Whites", 0, 255}}}},
    {"Desaturate", "Desaturate", "Image Control", "filter", {{{"amount", "Amount", -100, 100}}}},
    {"Drop Shadow",
     "dropshadow",
     "motion",
     "motion",
     {{{"offset", "offset", -100, 100}, {"angle", "angle", -720, 720}, {"softness", "softness", 0, 100}}}},
}};

inline constexpr std::array<Effect, 4> kAudioEffects{{
    {"Audio Levels", "audiolevels", "audiolevels", "audiolevels", {{{"level", "Level", 0, 3.98109}}}},
    {"Audio Pan", "audiopan", "audiopan", "audiopan", {{{"pan", "Pan", -1, 1}}}},
    {"High Pass Filter",
     "High Pass Filter",
     "Equalization",
     "filter",
     {{{"frequency", "Frequency", 20, 20000}, {"q", "Q", 0.1, 20}}}},
    {"Compressor/Limiter",
     "Compressor/Limiter",
     "Dynamics",
     "filter",
     {{{"threshold", "Threshold (dB)", -50, 0}, {"ratio", "Ratio", 1, 50}, {"attack", "Attack", 0, 100}}}},
}};

} // namespace vantrell::bench
