// TestoErrato.hpp - what is wrong with a text that a user gave, in words for its author.

#pragma once

#include <stdexcept>

namespace ordavel {

class TestoErrato : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace ordavel
