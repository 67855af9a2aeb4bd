std::map<unsigned long long, AnimationState> g_animationStates;
