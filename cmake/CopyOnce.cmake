# cmake -DFROM=file -DTO=file -P CopyOnce.cmake copies the file unless the target exists already.
if(NOT EXISTS ${TO})
    configure_file(${FROM} ${TO} COPYONLY)
endif()
