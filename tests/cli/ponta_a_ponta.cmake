cmake_minimum_required(VERSION 3.25)
# Pipes requests through corvina-cli and checks each answer line and the exit status.
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/pedidos.txt
"{\"op\":\"count\",\"side\":\"Jog\",\"hand\":[\"7/1\",\"7/2\",\"7/3\",\"4/2\",\"5/2\",\"6/2\",\"12/4\",\"13/4\",\"1/4\"],\"short\":false}
garbage
{\"op\":\"vale\",\"test\":\"dupla\",\"side\":\"Mac\",\"cards\":[\"5/1\",\"6/2\"]}
")
execute_process(COMMAND ${CLI} INPUT_FILE ${CMAKE_CURRENT_BINARY_DIR}/pedidos.txt
                OUTPUT_VARIABLE saida RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "corvina-cli exited with ${status}")
endif()
string(REPLACE ";" "<pv>" saida "${saida}") # a semicolon would split the list below
string(REPLACE "\n" ";" linhas "${saida}")
list(LENGTH linhas n)
if(NOT n EQUAL 4) # three answers and the empty rest after the last line end
  message(FATAL_ERROR "expected three answers, got:\n${saida}")
endif()
list(GET linhas 0 primeira)
list(GET linhas 1 segunda)
list(GET linhas 2 terceira)
if(NOT primeira STREQUAL "{\"count\":60,\"groups\":[\"4/2\",\"5/2\",\"6/2\",\"7/2\",\"7/3\",\"7/1\",\"1/4\",\"12/4\",\"13/4\"]}")
  message(FATAL_ERROR "count: ${primeira}")
endif()
if(NOT segunda MATCHES "^\\{\"error\":\"invalid JSON")
  message(FATAL_ERROR "bad line: ${segunda}")
endif()
if(NOT terceira STREQUAL "{\"result\":false}")
  message(FATAL_ERROR "vale: ${terceira}")
endif()
execute_process(COMMAND ${CLI} --help OUTPUT_VARIABLE ajuda RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT ajuda MATCHES "selfplay")
  message(FATAL_ERROR "--help: ${status}")
endif()
