# Copies the Node.js host from FROM to TO and installs there what its lock file names, unless that is
# done already. Counts as skipped where npm reaches no registry.
file(GLOB files ${FROM}/*.js ${FROM}/*.json)
file(COPY ${files} DESTINATION ${TO})
file(SHA256 ${TO}/package-lock.json wanted)
set(stamp ${TO}/installed)
if(EXISTS ${stamp})
  file(READ ${stamp} installed)
endif()
if("${installed}" STREQUAL "${wanted}")
  return()
endif()
# koffi brings its compiled part along; no script of a package needs to run. Without a network npm
# would wait two minutes before it looks into its cache.
execute_process(COMMAND ${NPM} ci --ignore-scripts --no-audit --no-fund
    --prefer-offline --fetch-retries=1 --fetch-retry-mintimeout=1000
  WORKING_DIRECTORY ${TO} RESULT_VARIABLE result ERROR_VARIABLE messages)
if(NOT result EQUAL 0)
  string(CONCAT unreachable "ENOTFOUND|EAI_AGAIN|ECONNREFUSED|ECONNRESET|ENETUNREACH|EHOSTUNREACH"
    "|ETIMEDOUT|[A-Z_]*TIMEOUT|E50[0-9]")
  if(NOT messages MATCHES "npm (ERR!|error) code (${unreachable})")
    message(FATAL_ERROR "npm ci: ${messages}")
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -E echo
    "skipped: hosts.node and documents.node (npm reaches no registry)")
  return()
endif()
file(WRITE ${stamp} ${wanted})
