// The least that a program with a window can do: it ends when it has been painted.
#include <QApplication>
#include <QTimer>
#include <QWidget>

class EmptyWindow final : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override
    {
        QTimer::singleShot(0, [] { QApplication::exit(0); });
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    EmptyWindow window;
    window.resize(1000, 800);
    window.show();
    return QApplication::exec();
}
