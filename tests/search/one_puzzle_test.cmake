# The same seed makes the same puzzle everywhere.
execute_process(COMMAND ${PROGRAM} 1 OUTPUT_VARIABLE puzzle RESULT_VARIABLE status)
string(CONCAT expected
  "9........3..8...7.....918.2...62.4.72....4....78..5329.....2...........11.....2.. "
  "111223333122223333112224453114444555614644577666688557699688557699988887999987777\n")
if(NOT status EQUAL 0 OR NOT puzzle STREQUAL expected)
  message(FATAL_ERROR "status ${status}, puzzle ${puzzle}")
endif()
