# cmake -DFROM=file -DTO=file -P CopyOnce.cmake: copies unless the target is there already.
if(NOT EXISTS ${TO})
    configure_file(${FROM} ${TO} COPYONLY)
endif()
