# Puts the operator into the example, whose own CMakeLists.txt stays as a user has it.
set(operator "${CMAKE_CURRENT_LIST_DIR}/drive.cpp")
cmake_language(DEFER CALL target_sources setpoint PRIVATE "${operator}")
