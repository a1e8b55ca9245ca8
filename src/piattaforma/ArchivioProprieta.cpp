// ArchivioProprieta.cpp - where a host keeps the settings of a component.

#include "ordavel/ArchivioProprieta.hpp"

namespace ordavel {

ArchivioProprieta::~ArchivioProprieta() = default;

} // namespace ordavel
