#pragma once

#include <QSettings>

#include <optional>
#include <string>
#include <vector>

#include "pdf/PdfOptions.h"

// The printers that the user has tried out, by the names they were given. They are kept among the
// user's settings.
class PrinterProfiles
{
public:
    // The settings must outlive the profiles.
    explicit PrinterProfiles(QSettings& userSettings) : settings(userSettings) {}

    // In ascending order.
    std::vector<std::string> names() const;
    std::optional<PrinterSettings> find(const std::string& name) const;
    // Takes the place of one with the same name.
    void keep(const std::string& name, const PrinterSettings& printer);
    void remove(const std::string& name);

private:
    QSettings& settings;
};
