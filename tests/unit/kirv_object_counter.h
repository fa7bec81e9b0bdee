// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_OBJECT_COUNTER_H
#define KIRV_OBJECT_COUNTER_H

#include <QtGlobal>

class QObject;

QT_BEGIN_NAMESPACE
/// What Qt offers to tools that follow its objects: places 3 and 4 are called for each one that comes and goes.
extern Q_CORE_EXPORT quintptr qtHookData[];
QT_END_NAMESPACE

/// Counts the QObjects that live on: what was made and not destroyed since the counter was.
class KirvObjectCounter {
public:
    KirvObjectCounter()
    {
        balance() = 0;
        qtHookData[added] = reinterpret_cast<quintptr>(&add);
        qtHookData[removed] = reinterpret_cast<quintptr>(&remove);
    }
    ~KirvObjectCounter()
    {
        qtHookData[added] = 0;
        qtHookData[removed] = 0;
    }

    int living() const { return balance(); }

private:
    Q_DISABLE_COPY(KirvObjectCounter)

    enum { added = 3, removed = 4 };

    static int &balance()
    {
        static int count = 0;
        return count;
    }
    static void add(QObject *) { ++balance(); }
    static void remove(QObject *) { --balance(); }
};

#endif
