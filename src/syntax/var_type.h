// Static kinds: the generator's best estimate of what a value holds.
#pragma once

enum class VarType {
    Unset = 0,  ///< A declaration whose kind the parser left open.
    Integer = 1,
    Decimal = 2,
    String = 3,
    Boolean = 4,
    Dynamic = 5,
    Time = 6,
    List = 7,
    Object = 8,  ///< A structure's instance, and a lambda.
    Map = 9,
};
