// Fills forms of 1,000 and 10,000 widgets from variables and reads them back, to see whether the
// time grows with the number of widgets. Ends with 1 when ten times the widgets take more than
// twelve times as long.
#include "qtsync/KVQtSync.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>
#include <vector>

namespace {

constexpr double kMostTimes = 12;
constexpr int kWidgetsOfARecord = 10;
constexpr int kRounds = 3;

class Listener : public QObject
{
    Q_OBJECT

public slots:
    void changed() {}
};

struct Animal
{
    QString name = "cow";
    QString voice = "anna";
    double speed = 12.5;
    int legs = 4;
    int food = 1;
    int colour = 2;
    int tame = 1;
};

// Ten widgets for one record, the three radio buttons in a box of their own.
struct Fields
{
    explicit Fields(QWidget* form)
        : name(form),
          voice(form),
          speed(form),
          legs(form),
          food(form),
          tame(form),
          box(form),
          black(&box),
          brown(&box),
          white(&box)
    {
        food.addItems({"hay", "grass"});
    }

    void sync(KVQtSync& sync, Animal& animal)
    {
        sync.syncS(animal.name, &name);
        sync.syncS(animal.voice, &voice);
        sync.syncD(animal.speed, &speed);
        sync.syncI(animal.legs, &legs);
        sync.syncI(animal.food, &food);
        sync.syncI(animal.tame, &tame);
        sync.syncI(animal.colour, &black);
    }

    QLineEdit name, voice, speed;
    QSpinBox legs;
    QComboBox food;
    QCheckBox tame;
    QGroupBox box;
    QRadioButton black, brown, white;
};

struct Form
{
    explicit Form(int widgets) : animals(size_t(widgets / kWidgetsOfARecord))
    {
        for (size_t i = 0; i < animals.size(); ++i) {
            fields.push_back(std::make_unique<Fields>(&window));
        }
    }

    // Milliseconds of this process, whatever else the machine does. A form is filled from the event
    // loop: nothing is pending when it begins.
    double pass(KVQtSync::SyncMode mode)
    {
        QCoreApplication::processEvents();
        const std::clock_t start = std::clock();
        KVQtSync sync(mode);
        for (size_t i = 0; i < animals.size(); ++i) {
            fields[i]->sync(sync, animals[i]);
        }
        return 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
    }

    QWidget window;
    std::vector<Animal> animals;
    std::vector<std::unique_ptr<Fields>> fields;
};

struct Times
{
    double firstFill, fill, read;
};

// One pass over each form in turn, per form.
double passes(const std::vector<std::unique_ptr<Form>>& forms, KVQtSync::SyncMode mode)
{
    double sum = 0;
    for (const auto& form : forms) {
        sum += form->pass(mode);
    }
    return sum / double(forms.size());
}

// The best of several rounds. Only the first filling of a form connects its widgets.
Times measure(int formCount, int widgetsOfAForm)
{
    Times best = {1e9, 1e9, 1e9};
    for (int i = 0; i < kRounds; ++i) {
        std::vector<std::unique_ptr<Form>> forms;
        for (int form = 0; form < formCount; ++form) {
            forms.push_back(std::make_unique<Form>(widgetsOfAForm));
        }
        best.firstFill = std::min(best.firstFill, passes(forms, KVQtSync::ToWidgets));
        best.fill = std::min(best.fill, passes(forms, KVQtSync::ToWidgets));
        best.read = std::min(best.read, passes(forms, KVQtSync::FromWidgets));
    }
    return best;
}

bool report(const char* what, double small, double large)
{
    printf("%-24s %8.2f ms %8.2f ms   %5.1f times\n", what, small, large, large / small);
    return large <= kMostTimes * small;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Listener listener;
    KVQtSync::connectChangeEventSlot(&listener, SLOT(changed()));
    // Both times among 10,000 widgets, which no processor's cache holds: a small form that is
    // filled again and again would be compared out of the cache.
    const Times small = measure(10, 1000);
    const Times large = measure(1, 10000);
    printf("%-24s %11s %11s\n", "", "1,000", "10,000 widgets");
    const bool first = report("fill and connect", small.firstFill, large.firstFill);
    const bool again = report("fill again", small.fill, large.fill);
    const bool read = report("read back", small.read, large.read);
    return first && again && read ? 0 : 1;
}

#include "sync_bench.moc"
