// What a drag of a sequence carries: a proxy, good only within the program and its window. From a
// grid it is that grid's own sequence, from a list one of its rows.
#pragma once
#include "app/grid/ZELSequenceProxy.h"

#include <QMimeData>
#include <memory>

inline constexpr const char* kSequencePasteboardType = "ZELSequenceProxy_PboardType";
inline constexpr const char* kTreeNodePasteboardType = "ZELDicomTreeNode_PboardType";

class SequenceMime final : public QMimeData {
    Q_OBJECT

public:
    // `window`: as notifications name it. `type`: one of the above.
    SequenceMime(const char* type, std::shared_ptr<ZELSequenceProxy> proxy, const void* window)
        : fProxy(std::move(proxy)), fWindow(window)
    {
        setData(QLatin1String(type), QByteArrayLiteral("1"));  // what is carried stays here
    }
    [[nodiscard]] static const SequenceMime* Of(const QMimeData* data)
    {
        return qobject_cast<const SequenceMime*>(data);
    }
    [[nodiscard]] const std::shared_ptr<ZELSequenceProxy>& proxy() const { return fProxy; }
    [[nodiscard]] const void* window() const { return fWindow; }
    [[nodiscard]] bool isFromGrid() const
    {
        return hasFormat(QLatin1String(kSequencePasteboardType));
    }

private:
    std::shared_ptr<ZELSequenceProxy> fProxy;
    const void* fWindow;
};
