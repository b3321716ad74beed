#pragma once

/// A visitor composed of one function for each alternative of a variant.
template <class... Functions>
struct Overloaded : Functions...
{
    using Functions::operator()...;
};

template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;
