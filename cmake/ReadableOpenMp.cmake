# For builds with the thread sanitizer: OpenMP on threads whose order it can see. The compiler's own
# runtime is built without it, so everything in a parallel region would look unordered.
add_library(readable_openmp STATIC ${CMAKE_SOURCE_DIR}/cmake/ReadableOpenMp.cpp)
target_link_libraries(readable_openmp PRIVATE plinkett_warnings)
set_target_properties(OpenMP::OpenMP_CXX PROPERTIES INTERFACE_LINK_LIBRARIES readable_openmp)
