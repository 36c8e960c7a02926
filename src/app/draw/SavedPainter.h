// A painter's state, put back at the end of a scope.
#pragma once
#include <QPainter>

class SavedPainter {
public:
    explicit SavedPainter(QPainter* painter) : fPainter(painter) { painter->save(); }
    ~SavedPainter() { fPainter->restore(); }
    SavedPainter(const SavedPainter&) = delete;
    SavedPainter& operator=(const SavedPainter&) = delete;

private:
    QPainter* fPainter;
};
