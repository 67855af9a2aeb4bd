// A decimal to the whole number above or below it.

long long fn_மேல்எண்(long double val) { return std::ceil(val); }

long long fn_கீழ்எண்(long double val) { return std::floor(val); }
