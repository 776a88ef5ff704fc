// Waits until the settings application has ended, then opens it again with a pane:
//   launcher PANE-BUNDLE Yes|No
// Its standard input is a pipe whose other end the settings application holds for as long as it lives. "Yes" has it log
// what it does. The settings application's program is named by the environment, in LUMAROO_HOST_EXECUTABLE.

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <syslog.h>
#include <unistd.h>

namespace {

constexpr char hostVariable[] = "LUMAROO_HOST_EXECUTABLE";

int fail(const std::string &what)
{
    syslog(LOG_ERR, "lumaroo: launcher: %s", what.c_str());
    return EXIT_FAILURE;
}

/// False where the input cannot be read: then nobody knows whether the settings have ended.
bool waitForEndOfInput()
{
    char ignored[256];
    ssize_t size = 0;
    do
        size = read(STDIN_FILENO, ignored, sizeof ignored);
    while (size > 0 || (size < 0 && errno == EINTR));
    return size == 0;
}

void emptyInput()
{
    const int nothing = open("/dev/null", O_RDONLY);
    if (nothing > STDIN_FILENO) {
        dup2(nothing, STDIN_FILENO);
        close(nothing);
    }
}

int openAgain(std::string host, std::string pane)
{
    unsetenv(hostVariable);
    emptyInput();
    char *arguments[] = {host.data(), pane.data(), nullptr};
    execv(host.c_str(), arguments);
    return fail(host + " cannot be run: " + std::strerror(errno));
}

} // namespace

int main(int argumentCount, char **arguments)
{
    openlog("launcher", LOG_PID | LOG_PERROR, LOG_USER);
    if (argumentCount != 3)
        return fail("two arguments are needed: the pane's bundle, and Yes or No");
    const char *host = std::getenv(hostVariable);
    if (!host || !*host)
        return fail(std::string(hostVariable) + " does not name the settings application");
    const bool isVerbose = arguments[2] == std::string_view("Yes");
    if (isVerbose)
        syslog(LOG_NOTICE, "lumaroo: launcher: waiting for %s to end", host);
    if (!waitForEndOfInput())
        return fail(std::string("cannot read its input: ") + std::strerror(errno));
    if (isVerbose)
        syslog(LOG_NOTICE, "lumaroo: launcher: opening %s with %s", host, arguments[1]);
    return openAgain(host, arguments[1]);
}
