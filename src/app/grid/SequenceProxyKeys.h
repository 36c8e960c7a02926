// Which keys of a sequence proxy follow from which.
#pragma once
#include "platform/ObservableKeys.h"

[[nodiscard]] std::span<const DerivedKey> SequenceProxyDerivedKeys();
