// What an animation knows of itself. The diagnostics object holds the instances of a map of them.

struct AnimationState {
    double startTime = 0.0;
    bool isRunning = false;
    float currentProgress = 0.0f;
    bool hasTriggered = false;
};
