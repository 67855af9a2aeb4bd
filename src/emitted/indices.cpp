// A number as the bound of a loop or the place in a list.

long long fn_index(long long value) { return value; }

long long fn_index(int value) { return value; }

long long fn_index(const std::any& value) {
    if (const long long* number = std::any_cast<long long>(&value)) return *number;
    if (const int* number = std::any_cast<int>(&value)) return *number;
    if (const long double* number = std::any_cast<long double>(&value)) return (long long)*number;
    throw std::runtime_error("பொருந்தாத தரவு வகை (Type Mismatch)!");
}
