// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// Whether AddressSanitizer watches this build; g++ and clang say so in different ways.
// Read by the preprocessor.
// NOLINTBEGIN(cppcoreguidelines-macro-usage)
#if defined(__SANITIZE_ADDRESS__)
#define VELQUON_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VELQUON_ADDRESS_SANITIZER 1
#endif
#endif
#ifndef VELQUON_ADDRESS_SANITIZER
#define VELQUON_ADDRESS_SANITIZER 0
#endif
// NOLINTEND(cppcoreguidelines-macro-usage)
