#include "updater/windows/UpdateCourse.h"

extern "C" Q_DECL_EXPORT UpdateEngine *lumarooUpdateEngine(NSBundle *bundle)
{
    return new UpdateCourse(bundle);
}
