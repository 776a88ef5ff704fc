#include <unistd.h>

int main()
{
    for (;;)
        pause();
}
