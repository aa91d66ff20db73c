// The C++20 face of libqvxs: functions by stem over spans, records as objects. docs/cpp.md tells how it is meant.
#ifndef QVX_QVXS_HPP
#define QVX_QVXS_HPP

#include <qvx/qvxs_filters.hpp>
#include <qvx/qvxs_functions.hpp>
#include <qvx/qvxs_generators.hpp>
#include <qvx/qvxs_memory.hpp>
#include <qvx/qvxs_result.hpp>
#include <qvx/qvxs_transforms.hpp>
#include <qvx/qvxs_vectors.hpp>

#endif
