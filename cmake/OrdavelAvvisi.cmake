# The warnings of the project's own code, in a target that is linked privately and never installed.
# -Wrestrict is off with GCC: version 12 raises false alarms on std::string concatenations at -O2 and above.
add_library(ordavel_avvisi INTERFACE)
target_compile_options(ordavel_avvisi INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wimplicit-fallthrough -Wcast-qual -Wdouble-promotion
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<BOOL:${ORDAVEL_AVVISI_ERRORI}>:-Werror>)
