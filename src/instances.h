// The template instances that every generated program needs. The diagnostics object, which every
// program links, holds them; the warmed header declares them extern, so that g++ makes none in a
// program that is compiled with it. POZHIL_INSTANCE is `template` there, `extern template` here.
// They name parts of libstdc++ that only its own headers show, and are for g++ alone.

namespace pozhil {
using List = std::vector<std::any>;
using Dictionary = std::map<std::string, std::any>;
}  // namespace pozhil

POZHIL_INSTANCE class std::vector<std::any>;
POZHIL_INSTANCE class std::map<std::string, std::any>;
POZHIL_INSTANCE class std::_Rb_tree<std::string, std::pair<const std::string, std::any>,
                                    std::_Select1st<std::pair<const std::string, std::any>>,
                                    std::less<std::string>>;
POZHIL_INSTANCE class std::shared_ptr<_StructBase>;
POZHIL_INSTANCE class std::__shared_ptr<_StructBase>;
POZHIL_INSTANCE class std::__shared_count<>;
POZHIL_INSTANCE class std::function<void()>;
POZHIL_INSTANCE class std::function<std::any()>;
POZHIL_INSTANCE class std::function<std::any(std::any)>;
POZHIL_INSTANCE class std::function<std::any(std::any, std::any)>;
POZHIL_INSTANCE class std::function<std::any(std::any, std::any, std::any)>;

// A kind of value: how it gets into a std::any and out again.
#define POZHIL_HELD_INSTANCE(MANAGER, TYPE)                                    \
    POZHIL_INSTANCE class std::any::MANAGER<TYPE>;                             \
    POZHIL_INSTANCE std::any::any(TYPE&&);                                     \
    POZHIL_INSTANCE std::any::any(TYPE&);                                      \
    POZHIL_INSTANCE void* std::__any_caster<TYPE>(const std::any*);            \
    POZHIL_INSTANCE TYPE* std::any_cast<TYPE>(std::any*) noexcept;             \
    POZHIL_INSTANCE TYPE const* std::any_cast<TYPE>(const std::any*) noexcept; \
    POZHIL_INSTANCE TYPE std::any_cast<TYPE>(const std::any&);                 \
    POZHIL_INSTANCE TYPE std::any_cast<TYPE>(std::any&);                       \
    POZHIL_INSTANCE TYPE std::any_cast<TYPE>(std::any &&);                     \
    POZHIL_INSTANCE TYPE& std::any_cast<TYPE&>(std::any&);
POZHIL_HELD_INSTANCE(_Manager_internal, long long)
POZHIL_HELD_INSTANCE(_Manager_internal, int)
POZHIL_HELD_INSTANCE(_Manager_internal, char)
POZHIL_HELD_INSTANCE(_Manager_internal, bool)
POZHIL_HELD_INSTANCE(_Manager_internal, std::tm*)
POZHIL_HELD_INSTANCE(_Manager_external, long double)
POZHIL_HELD_INSTANCE(_Manager_external, std::string)
POZHIL_HELD_INSTANCE(_Manager_external, pozhil::List)
POZHIL_HELD_INSTANCE(_Manager_external, pozhil::Dictionary)
POZHIL_HELD_INSTANCE(_Manager_external, std::shared_ptr<_StructBase>)
POZHIL_HELD_INSTANCE(_Manager_external, std::function<std::any()>)
POZHIL_HELD_INSTANCE(_Manager_external, std::function<std::any(std::any)>)
POZHIL_HELD_INSTANCE(_Manager_external, std::function<std::any(std::any, std::any)>)
POZHIL_HELD_INSTANCE(_Manager_external, std::function<std::any(std::any, std::any, std::any)>)
#undef POZHIL_HELD_INSTANCE

// A text from a literal: each look-up of a variable makes one.
POZHIL_INSTANCE std::string::basic_string(const char*, const std::allocator<char>&);
POZHIL_INSTANCE void std::string::_M_construct(const char*, const char*, std::forward_iterator_tag);
POZHIL_INSTANCE bool std::operator==(const std::string&, const char*);
POZHIL_INSTANCE std::string std::operator+(const std::string&, const char*);
POZHIL_INSTANCE std::string std::operator+(const char*, const std::string&);
POZHIL_INSTANCE std::string std::operator+(std::string&&, std::string&&);
POZHIL_INSTANCE std::string std::operator+(const std::string&, const std::string&);
POZHIL_INSTANCE void std::__detail::__to_chars_10_impl(char*, unsigned, unsigned long long);
POZHIL_INSTANCE void std::__detail::__to_chars_10_impl(char*, unsigned, unsigned);
POZHIL_INSTANCE unsigned std::__detail::__to_chars_len(unsigned long long, int);
POZHIL_INSTANCE unsigned std::__detail::__to_chars_len(unsigned, int);
POZHIL_INSTANCE class std::_Sp_counted_base<__gnu_cxx::_S_atomic>;
POZHIL_INSTANCE std::string __gnu_cxx::__to_xstring<std::string, char>(
    int (*)(char*, std::size_t, const char*, __builtin_va_list), std::size_t, const char*, ...);
