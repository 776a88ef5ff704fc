#pragma once

#include <QtGlobal>

#ifdef LUMAROO_UPDATER_BUILD
#define LM_UPDATER Q_DECL_EXPORT
#else
#define LM_UPDATER Q_DECL_IMPORT
#endif
