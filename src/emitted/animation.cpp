// The animation engine: easing curves by name, and how far each animation is. What widgets call
// each frame is updateProgress of the boilerplate; the pair that looks at the clock is here for
// whoever wants it, and no widget calls it. Every program carries the engine and few use it: so
// that the others are built as fast without it, what needs containers are templates, all else is
// inline, and curves stand in plain tables.

inline float lerp(float start, float target, float progress) {
    return start + (target - start) * progress;
}

inline float easeLinear(float t) { return t; }
inline float easeInQuad(float t) { return t * t; }
inline float easeOutQuad(float t) { return t * (2.0f - t); }
inline float easeInOutQuad(float t) {
    return t < 0.5f ? 2.0f * t * t : -1.0f + (4.0f - 2.0f * t) * t;
}
inline float easeInCubic(float t) { return t * t * t; }
inline float easeOutCubic(float t) { return (t - 1.0f) * (t - 1.0f) * (t - 1.0f) + 1.0f; }
// The upper half isn't the usual one: at 0.5 it gives -3.5. Meant.
inline float easeInOutCubic(float t) {
    return t < 0.5f ? 4.0f * t * t * t
                    : 1.0f + (t - 1.0f) * (2.0f * (t - 2.0f)) * (2.0f * (t - 2.0f));
}

struct PozhilCurve {
    const char* name;
    float (*curve)(float);
};

namespace PozhilCurves {
const float PI = 3.14159265358979323846f;

inline float bounceOut(float t) {
    if (t < 1.0f / 2.75f) return 7.5625f * t * t;
    if (t < 2.0f / 2.75f) {
        t -= 1.5f / 2.75f;
        return 7.5625f * t * t + 0.75f;
    }
    if (t < 2.5f / 2.75f) {
        t -= 2.25f / 2.75f;
        return 7.5625f * t * t + 0.9375f;
    }
    t -= 2.625f / 2.75f;
    return 7.5625f * t * t + 0.984375f;
}
inline float bounceIn(float t) { return 1.0f - bounceOut(1.0f - t); }
inline float elasticIn(float t) {
    if (t == 0.0f || t == 1.0f) return t;
    return -powf(2.0f, 10.0f * t - 10.0f) * sinf((10.0f * t - 10.75f) * (2.0f * PI) / 3.0f);
}
inline float elasticOut(float t) {
    if (t == 0.0f || t == 1.0f) return t;
    return powf(2.0f, -10.0f * t) * sinf((10.0f * t - 0.75f) * (2.0f * PI) / 3.0f) + 1.0f;
}
}  // namespace PozhilCurves

template <typename Curve = float (*)(float)>
std::function<float(float)> பெறு_அசைவூட்ட_வளைவு(const std::string& curveName) {
    using namespace PozhilCurves;
    static const PozhilCurve rows[] = {
        {"சாதாரண", [](float t) { return t; }},
        {"இயல்பான", [](float t) { return t * t * (3.0f - 2.0f * t); }},
        {"மெது_தொடக்கம்", [](float t) { return t * t; }},
        {"மெது_முடிவு", [](float t) { return 1.0f - (1.0f - t) * (1.0f - t); }},
        {"மெது_மாற்றம்",
         [](float t) {
             return t < 0.5f ? 2.0f * t * t : 1.0f - powf(-2.0f * t + 2.0f, 2.0f) / 2.0f;
         }},
        {"அலை_தொடக்கம்", [](float t) { return 1.0f - cosf(t * PI / 2.0f); }},
        {"அலை_முடிவு", [](float t) { return sinf(t * PI / 2.0f); }},
        {"அலை_மாற்றம்", [](float t) { return -(cosf(PI * t) - 1.0f) / 2.0f; }},
        {"அழுத்த_தொடக்கம்", [](float t) { return t * t; }},
        {"அழுத்த_முடிவு", [](float t) { return 1.0f - (1.0f - t) * (1.0f - t); }},
        {"அழுத்த_மாற்றம்",
         [](float t) {
             return t < 0.5f ? 2.0f * t * t : 1.0f - powf(-2.0f * t + 2.0f, 2.0f) / 2.0f;
         }},
        {"கன_தொடக்கம்", [](float t) { return t * t * t; }},
        {"கன_முடிவு", [](float t) { return 1.0f - powf(1.0f - t, 3.0f); }},
        {"கன_மாற்றம்",
         [](float t) {
             return t < 0.5f ? 4.0f * t * t * t : 1.0f - powf(-2.0f * t + 2.0f, 3.0f) / 2.0f;
         }},
        {"வேக_தொடக்கம்", [](float t) { return t * t * t * t; }},
        {"வேக_முடிவு", [](float t) { return 1.0f - powf(1.0f - t, 4.0f); }},
        {"வேக_மாற்றம்",
         [](float t) {
             return t < 0.5f ? 8.0f * t * t * t * t : 1.0f - powf(-2.0f * t + 2.0f, 4.0f) / 2.0f;
         }},
        {"அதிவேக_தொடக்கம்", [](float t) { return t * t * t * t * t; }},
        {"அதிவேக_முடிவு", [](float t) { return 1.0f - powf(1.0f - t, 5.0f); }},
        {"அதிவேக_மாற்றம்",
         [](float t) {
             return t < 0.5f ? 16.0f * t * t * t * t * t
                             : 1.0f - powf(-2.0f * t + 2.0f, 5.0f) / 2.0f;
         }},
        {"பாய்_தொடக்கம்", [](float t) { return t == 0.0f ? 0.0f : powf(2.0f, 10.0f * t - 10.0f); }},
        {"பாய்_முடிவு", [](float t) { return t == 1.0f ? 1.0f : 1.0f - powf(2.0f, -10.0f * t); }},
        {"பாய்_மாற்றம்",
         [](float t) {
             if (t == 0.0f || t == 1.0f) return t;
             return t < 0.5f ? powf(2.0f, 20.0f * t - 10.0f) / 2.0f
                             : (2.0f - powf(2.0f, -20.0f * t + 10.0f)) / 2.0f;
         }},
        {"வட்ட_தொடக்கம்", [](float t) { return 1.0f - sqrtf(1.0f - t * t); }},
        {"வட்ட_முடிவு", [](float t) { return sqrtf(1.0f - (t - 1.0f) * (t - 1.0f)); }},
        {"வட்ட_மாற்றம்",
         [](float t) {
             return t < 0.5f ? (1.0f - sqrtf(1.0f - (2.0f * t) * (2.0f * t))) / 2.0f
                             : (sqrtf(1.0f - powf(-2.0f * t + 2.0f, 2.0f)) + 1.0f) / 2.0f;
         }},
        {"பின்வாங்கல்_தொடக்கம்",
         [](float t) {
             const float s = 1.70158f;
             return t * t * ((s + 1.0f) * t - s);
         }},
        {"பின்வாங்கல்_முடிவு",
         [](float t) {
             const float s = 1.70158f;
             const float u = t - 1.0f;
             return u * u * ((s + 1.0f) * u + s) + 1.0f;
         }},
        {"பின்வாங்கல்_மாற்றம்",
         [](float t) {
             const float s = 1.70158f * 1.525f;
             const float u = 2.0f * t;
             if (u < 1.0f) return 0.5f * (u * u * ((s + 1.0f) * u - s));
             const float v = u - 2.0f;
             return 0.5f * (v * v * ((s + 1.0f) * v + s) + 2.0f);
         }},
        {"துள்ளல்_தொடக்கம்", bounceIn},
        {"துள்ளல்", bounceOut},
        {"துள்ளல்_மாற்றம்",
         [](float t) {
             return t < 0.5f ? bounceIn(2.0f * t) * 0.5f : bounceOut(2.0f * t - 1.0f) * 0.5f + 0.5f;
         }},
        {"மீட்சி_தொடக்கம்", elasticIn},
        {"மீட்சி", elasticOut},
        {"மீட்சி_மாற்றம்",
         [](float t) {
             return t < 0.5f ? elasticIn(2.0f * t) * 0.5f
                             : elasticOut(2.0f * t - 1.0f) * 0.5f + 0.5f;
         }},
        {"வேகம்_குறை", [](float t) { return 1.0f - (1.0f - t) * (1.0f - t); }},
        {"வேக_மெது",
         [](float t) {
             return t < 0.5f ? 4.0f * t * t * t : 1.0f - powf(-2.0f * t + 2.0f, 3.0f) / 2.0f;
         }},
        {"நடு_மெது",
         [](float t) { return t < 0.5f ? 2.0f * t * t : 1.0f - 2.0f * (1.0f - t) * (1.0f - t); }},
        {"பாய்ந்து_அமர்", bounceOut},
        {"நிதான_முடிவு", [](float t) { return sinf(t * PI / 2.0f); }},
        {"நிதான_தொடக்கம்", [](float t) { return 1.0f - cosf(t * PI / 2.0f); }},
        {"மின்_வேகம்", [](float t) { return powf(t, 2.5f); }},
        {"சீறு", [](float t) { return t * t * t * t; }},
    };
    static std::unordered_map<std::string, Curve> curves;
    if (curves.empty()) {
        for (const PozhilCurve& row : rows) curves[row.name] = row.curve;
    }
    const auto found = curves.find(curveName);
    return found == curves.end() ? easeLinear : found->second;
}

template <typename = void>
std::function<float(float)> getEasingFunction(const std::string& curveName) {
    static const PozhilCurve rows[] = {
        {"ease_in", easeInQuad},
        {"easeIn", easeInQuad},
        {"மெதுவா_தொடங்கு", easeInQuad},
        {"ease_out", easeOutQuad},
        {"easeOut", easeOutQuad},
        {"மெதுவா_முடி", easeOutQuad},
        {"ease_in_out", easeInOutQuad},
        {"easeInOut", easeInOutQuad},
        {"மெதுவா_தொடங்கி_முடி", easeInOutQuad},
        {"ease_in_cubic", easeInCubic},
        {"easeInCubic", easeInCubic},
        {"ease_out_cubic", easeOutCubic},
        {"easeOutCubic", easeOutCubic},
        {"ease_in_out_cubic", easeInOutCubic},
        {"easeInOutCubic", easeInOutCubic},
    };
    for (const PozhilCurve& row : rows) {
        if (curveName == row.name) return row.curve;
    }
    return பெறு_அசைவூட்ட_வளைவு(curveName);
}

template <typename = void>
void updateAnimationProgress(unsigned long long nodeId, float duration) {
    AnimationState& state = g_animationStates[nodeId];
    if (!(duration > 0.0f) || state.currentProgress >= 1.0f) return;
    double currentTime = 0.0;
#ifdef __EMSCRIPTEN__
    currentTime = emscripten_get_now() / 1000.0;
#endif
    if (!state.isRunning) {
        state.startTime = currentTime;
        state.isRunning = true;
    }
    const double elapsed = currentTime - state.startTime;
    state.currentProgress = std::min(1.0f, (float)(elapsed / (double)duration));
}

template <typename = void>
float applyAnimation(unsigned long long nodeId, float duration, const std::string& curve,
                     float startValue, float targetValue) {
    updateAnimationProgress(nodeId, duration);
    const std::function<float(float)> easingFunc = getEasingFunction(curve);
    return lerp(startValue, targetValue, easingFunc(g_animationStates[nodeId].currentProgress));
}
