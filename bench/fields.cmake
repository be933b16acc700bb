# Long field lists: read, write and growth time per value, peak memory per
# value (a plain main; no benchmark library needed).
add_executable(lumeric_bench_fields ${CMAKE_CURRENT_LIST_DIR}/FieldWriteBench.cpp)
target_link_libraries(lumeric_bench_fields PRIVATE lumeric_static lumeric_warnings)
