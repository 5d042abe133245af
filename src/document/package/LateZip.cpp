// The functions of libzip that this folder uses. They take the place of libzip when the program is linked,
// and load it when the first of them is called: it brings along a library for ciphers, and to bind the
// thousands of names of both would take a tenth of the program's start.

#include "platform/native/library/LateLibrary.h"

#include <zip.h>

namespace {

/// Calls the function of libzip that has this name. Without libzip there are no sources and no archives, so
/// that nothing can be done with them either.
template <class Result, class... Arguments>
Result Call(const char* name, Result (*)(Arguments...), Arguments... arguments) {
    static const korvane::LateLibrary library(KORVANE_ZIP_NAME);
    const auto function = reinterpret_cast<Result (*)(Arguments...)>(library.Find(name));
    return function == nullptr ? Result() : function(arguments...);
}

} // namespace

extern "C" {

int zip_close(zip_t* archive) {
    return Call("zip_close", zip_close, archive);
}

void zip_discard(zip_t* archive) {
    Call("zip_discard", zip_discard, archive);
}

void zip_error_fini(zip_error_t* error) {
    Call("zip_error_fini", zip_error_fini, error);
}

void zip_error_init(zip_error_t* error) {
    Call("zip_error_init", zip_error_init, error);
}

void zip_error_init_with_code(zip_error_t* error, int code) {
    Call("zip_error_init_with_code", zip_error_init_with_code, error, code);
}

zip_int64_t zip_error_to_data(const zip_error_t* error, void* data, zip_uint64_t length) {
    return Call("zip_error_to_data", zip_error_to_data, error, data, length);
}

int zip_fclose(zip_file_t* file) {
    return Call("zip_fclose", zip_fclose, file);
}

zip_int64_t zip_file_add(zip_t* archive, const char* name, zip_source_t* source, zip_flags_t flags) {
    return Call("zip_file_add", zip_file_add, archive, name, source, flags);
}

int zip_file_set_dostime(zip_t* archive, zip_uint64_t index, zip_uint16_t time, zip_uint16_t date,
                         zip_flags_t flags) {
    return Call("zip_file_set_dostime", zip_file_set_dostime, archive, index, time, date, flags);
}

zip_file_t* zip_fopen_index(zip_t* archive, zip_uint64_t index, zip_flags_t flags) {
    return Call("zip_fopen_index", zip_fopen_index, archive, index, flags);
}

zip_int64_t zip_fread(zip_file_t* file, void* buffer, zip_uint64_t count) {
    return Call("zip_fread", zip_fread, file, buffer, count);
}

zip_int64_t zip_name_locate(zip_t* archive, const char* name, zip_flags_t flags) {
    return Call("zip_name_locate", zip_name_locate, archive, name, flags);
}

zip_t* zip_open_from_source(zip_source_t* source, int flags, zip_error_t* error) {
    return Call("zip_open_from_source", zip_open_from_source, source, flags, error);
}

zip_source_t* zip_source_buffer_create(const void* data, zip_uint64_t length, int owned, zip_error_t* error) {
    return Call("zip_source_buffer_create", zip_source_buffer_create, data, length, owned, error);
}

int zip_source_close(zip_source_t* source) {
    return Call("zip_source_close", zip_source_close, source);
}

void zip_source_free(zip_source_t* source) {
    Call("zip_source_free", zip_source_free, source);
}

zip_source_t* zip_source_function(zip_t* archive, zip_source_callback answer, void* state) {
    return Call("zip_source_function", zip_source_function, archive, answer, state);
}

void zip_source_keep(zip_source_t* source) {
    Call("zip_source_keep", zip_source_keep, source);
}

int zip_source_open(zip_source_t* source) {
    return Call("zip_source_open", zip_source_open, source);
}

zip_int64_t zip_source_read(zip_source_t* source, void* data, zip_uint64_t length) {
    return Call("zip_source_read", zip_source_read, source, data, length);
}

int zip_stat_index(zip_t* archive, zip_uint64_t index, zip_flags_t flags, zip_stat_t* stat) {
    return Call("zip_stat_index", zip_stat_index, archive, index, flags, stat);
}

void zip_stat_init(zip_stat_t* stat) {
    Call("zip_stat_init", zip_stat_init, stat);
}

} // extern "C"
