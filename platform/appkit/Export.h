#pragma once

#include <QtGlobal>

#ifdef LUMAROO_APPKIT_BUILD
#define LM_APPKIT Q_DECL_EXPORT
#else
#define LM_APPKIT Q_DECL_IMPORT
#endif
