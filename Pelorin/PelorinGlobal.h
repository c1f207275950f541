#ifndef PELORIN_PELORINGLOBAL_H
#define PELORIN_PELORINGLOBAL_H

#include <QtCore/QtGlobal>

#if defined(Pelorin_EXPORTS)
#define PELORIN_EXPORT Q_DECL_EXPORT
#else
#define PELORIN_EXPORT Q_DECL_IMPORT
#endif

#endif
