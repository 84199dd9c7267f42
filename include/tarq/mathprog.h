/* The C interface of a MathProg reader: the operations that a library must export, under these names, so that the
 * component reads models in GNU MathProg through it.
 *
 * The library holds one problem, the one read last. Strings are 8-bit and null-terminated, indices are 1-based. All
 * calls come from one thread at a time. All operations but mp_create_prob and mp_print_prob are needed.
 */
#ifndef TARQ_MATHPROG_H
#define TARQ_MATHPROG_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(_WIN32)
#define TARQ_MATHPROG_API __declspec(dllexport)
#else
#define TARQ_MATHPROG_API __attribute__((visibility("default")))
#endif

/* The numbers in which the operations answer. */
enum TarqMathProgValue {
    MP_CLASS_LP = 100, /* no integer column; any other class has some */
    MP_TYPE_FREE = 110,
    MP_TYPE_LOWER = 111,
    MP_TYPE_UPPER = 112,
    MP_TYPE_DOUBLE = 113,
    MP_TYPE_FIXED = 114,
    MP_DIR_MIN = 120,        /* any other direction is to maximize */
    MP_KIND_CONTINUOUS = 160 /* any other kind is integer */
};

/* Reads a model and its data, and generates the problem. dataFile may be null: the data are those in the model file.
 * What the reader has to say goes to outputFile, which is there and empty, also when it fails; nothing else may be
 * printed. 0 on success. The three texts stand in buffers of at least 255 characters. */
TARQ_MATHPROG_API int32_t mp_read_model2(const char* modelFile, const char* dataFile, const char* outputFile);

TARQ_MATHPROG_API int32_t mp_get_class(void);
TARQ_MATHPROG_API int32_t mp_get_obj_dir(void);
TARQ_MATHPROG_API int32_t mp_get_num_cols(void);
TARQ_MATHPROG_API int32_t mp_get_num_rows(void);

/* Columns. A bound counts only where the type tells that there is one. A null name is an empty one; a name is valid
 * until the next call. */
TARQ_MATHPROG_API const char* mp_get_col_name(int32_t j);
TARQ_MATHPROG_API int32_t mp_get_col_kind(int32_t j);
TARQ_MATHPROG_API int32_t mp_get_col_type(int32_t j);
TARQ_MATHPROG_API double mp_get_col_lb(int32_t j);
TARQ_MATHPROG_API double mp_get_col_ub(int32_t j);
TARQ_MATHPROG_API double mp_get_obj_coef(int32_t j);

/* Rows. The first free row is the objective. mp_get_mat_row writes the nonzeros of a row to the positions from 1 on of
 * two arrays of n + 1 entries, n being the number of columns, and returns their number, at most n. */
TARQ_MATHPROG_API const char* mp_get_row_name(int32_t i);
TARQ_MATHPROG_API int32_t mp_get_row_type(int32_t i);
TARQ_MATHPROG_API double mp_get_row_lb(int32_t i);
TARQ_MATHPROG_API double mp_get_row_ub(int32_t i);
TARQ_MATHPROG_API int32_t mp_get_mat_row(int32_t i, int32_t* indices, double* values);

/* Looked up with the others but never called; may be left out. */
TARQ_MATHPROG_API int32_t mp_create_prob(void);
TARQ_MATHPROG_API int32_t mp_print_prob(void);

#ifdef __cplusplus
}
#endif

#endif
