#pragma once

#include <QtGlobal>

#ifdef LUMAROO_FOUNDATION_BUILD
#define LM_FOUNDATION Q_DECL_EXPORT
#else
#define LM_FOUNDATION Q_DECL_IMPORT
#endif
