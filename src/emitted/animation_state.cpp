// What an animation knows of itself.

struct AnimationState {
    double startTime = 0.0;
    bool isRunning = false;
    float currentProgress = 0.0f;
    bool hasTriggered = false;
};
