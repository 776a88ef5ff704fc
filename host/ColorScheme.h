#pragma once

/// Whether the desktop wants light or dark windows.
enum class ColorScheme { Light, Dark };
