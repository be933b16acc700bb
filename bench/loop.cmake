# The whole translation of a LOOP of 10^4 to 10^6 repetitions: time, peak
# memory and how the time grows (a plain main).
add_executable(lumeric_bench_loop ${CMAKE_CURRENT_LIST_DIR}/LoopBench.cpp)
target_link_libraries(lumeric_bench_loop PRIVATE lumeric_static lumeric_warnings)
