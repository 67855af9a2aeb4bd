// A dynamic value as a native number: 0 for what is none.

long double fn_get_double(const std::any& a) {
    if (const long long* number = std::any_cast<long long>(&a)) return *number;
    if (const long double* number = std::any_cast<long double>(&a)) return *number;
    if (const int* number = std::any_cast<int>(&a)) return *number;
    return 0.0L;
}
