"""Which library a header from outside belongs to."""

import re

LIBRARIES = {
    "Qt": r"Qt|Q[A-Z]\w*(/.*)?|Qt\w*/.*|q[a-z_]+\.h|.*\.moc",
    "OpenGL": r"(GL|GLES\d?|KHR|EGL|epoxy)/.*",
    "SDL": r"(SDL2/)?SDL.*",
    "Bullet": r"bt[A-Z].*|(bullet/)?(Bullet|LinearMath).*|bullet/.*",
    "mpg123": r"(out|syn|fmt)?123\.h|mpg123\.h",
    "ALSA": r"alsa/.*",
    "Speech Dispatcher": r"(speech-dispatcher/)?(libspeechd|speechd_\w+)\.h",
    "GLM": r"glm/.*",
    "nlohmann-json": r"nlohmann/.*",
    "GoogleTest": r"(gtest|gmock)/.*",
    "RapidCheck": r"rapidcheck(/.*|\.h)",
    "Google Benchmark": r"benchmark/.*",
    "POSIX": r"(sys/\w+|arpa/\w+|netinet/\w+|dirent|dlfcn|execinfo|fcntl|malloc|poll|pthread|pwd|spawn|unistd)\.h",
}

STANDARD = set(
    """
    algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts condition_variable
    coroutine deque exception execution filesystem format forward_list fstream functional future initializer_list iomanip
    ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new numbers numeric
    optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex source_location span
    sstream stack stdexcept stop_token streambuf string string_view strstream syncstream system_error thread tuple
    type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector version
    cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef cstdint cstdio
    cstdlib cstring ctime cuchar cwchar cwctype
    """.split()
)


def library_of(header):
    """The library's name, "standard", or None for a header that is not known."""
    if header in STANDARD:
        return "standard"
    return next((name for name, pattern in LIBRARIES.items() if re.fullmatch(pattern, header)), None)
