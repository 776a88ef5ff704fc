#pragma once

/// The environment variable that an application is launched with: the identifier of its bundle.
inline constexpr char applicationIdentifierVariable[] = "LUMAROO_BUNDLE_IDENTIFIER";
