// The rules of the field for the default speed of movies. No widgets. Main thread only.
#pragma once
#include <QString>

class SpeedField {
public:
    [[nodiscard]] static QString text();  // the stored speed, frames per second

    // `text` is what the field shows.
    void beginEditing(const QString& text);
    // What the field shows from now on. An empty text means 15, one with anything but digits the
    // old one. Another speed is brought to 4 to 60, stored, and told.
    [[nodiscard]] QString endEditing(const QString& typed) const;

private:
    QString fOldText;
    int fOldValue = 0;
};
