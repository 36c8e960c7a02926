// The font of the text over images, as the user chooses it. No widgets. Main thread only.
#pragma once
#include <QFont>

class AnnotationFont {
public:
    [[nodiscard]] static QFont current();
    // Size and name, to be shown in that font.
    [[nodiscard]] static QString sampleText();
    // Stores name and size, cut to whole points, and tells.
    static void changeFontForInfoText(const QFont& font);
};
