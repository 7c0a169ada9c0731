#include "integer_types.h"

const QList<IntegerType> &integerTypes()
{
    static const QList<IntegerType> types {
        {"signed char", {"signed char"}},
        {"unsigned char", {"unsigned char"}},
        {"short", {"short int", "short"}},
        {"unsigned short", {"short unsigned int", "unsigned short", "unsigned short int"}},
        {"int", {"int"}},
        {"unsigned int", {"unsigned int", "unsigned"}},
        {"long", {"long int", "long"}},
        {"unsigned long", {"long unsigned int", "unsigned long", "unsigned long int"}},
        {"long long", {"long long int", "long long"}},
        {"unsigned long long", {"long long unsigned int", "unsigned long long"}},
        {"char", {"char"}},
    };
    return types;
}
