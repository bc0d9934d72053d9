"""The headers of the C++20 standard library."""
CXX_HEADERS = frozenset('''
algorithm any array atomic barrier bit bitset cassert ccomplex cctype cerrno cfenv cfloat charconv chrono cinttypes
climits clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef
cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list
fstream functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map
memory memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view
syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
variant vector version
'''.split())

# Their C forms: accepted beside Qt, but not in the core, which uses the C++ names.
C_HEADERS = frozenset(
    'assert.h ctype.h errno.h float.h limits.h math.h stddef.h stdint.h stdio.h stdlib.h string.h time.h'.split())
