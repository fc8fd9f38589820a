#include "bench/PrintBenchBook.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "base/FileSystem.h"

namespace {

constexpr double kTurn = 6.283185307179586;
constexpr int kVertices = 20;

// Random colours on a coarse grid, scaled up smoothly.
QImage octave(int width, int height, int cells, std::mt19937& random)
{
    QImage grid(cells * 3 / 2, cells, QImage::Format_RGB32);
    for (int y = 0; y < grid.height(); ++y) {
        for (int x = 0; x < grid.width(); ++x) {
            grid.setPixel(x, y, 0xff000000 | random());
        }
    }
    return grid.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// Adds the octave to the sum of each sample, around 0.
void add(const QImage& image, double weight, std::vector<double>& sum)
{
    std::size_t i = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            for (const int sample : {qRed(pixel), qGreen(pixel), qBlue(pixel)}) {
                sum[i++] += weight * (sample - 128);
            }
        }
    }
}

std::vector<Oid::PNT> blob(double x, double y, double radius, std::mt19937& random)
{
    std::vector<Oid::PNT> points;
    for (int i = 0; i < kVertices; ++i) {
        const double wobble = std::uniform_real_distribution<double>(0.8, 1.2)(random);
        const double angle = kTurn * i / kVertices;
        points.push_back(
            {x + radius * wobble * std::cos(angle), y + radius * wobble * std::sin(angle)});
    }
    return points;
}

}  // namespace

QImage photoLikeImage(int width, int height)
{
    constexpr int kOctaves = 8;
    constexpr double kFalloff = 0.55;
    std::mt19937 random(7);
    std::vector<double> sum(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
    for (int i = 0; i < kOctaves; ++i) {
        add(octave(width, height, 4 << i, random), 0.7 * std::pow(kFalloff, i), sum);
    }
    std::normal_distribution<double> noise(0, 3);
    QImage image(width, height, QImage::Format_RGB32);
    std::size_t i = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x, i += 3) {
            const double grain = 128 + noise(random);
            const auto sample = [&](double value) {
                return std::clamp(static_cast<int>(value + grain), 0, 255);
            };
            image.setPixel(x, y, qRgb(sample(sum[i]), sample(sum[i + 1]), sample(sum[i + 2])));
        }
    }
    return image;
}

Oid::PICTURE benchPicture(int areas)
{
    Oid::PICTURE picture;  // has the size of the page already
    const double width = 100;
    const double height = width * picture.paperHeight / picture.paperWidth;
    const int rows = std::max(1, static_cast<int>(std::sqrt(areas * height / width)));
    const int columns = (areas + rows - 1) / rows;
    const double radius = 0.4 * std::min(width / columns, height / rows);
    std::mt19937 random(5);
    for (int i = 0; i < areas; ++i) {
        Oid::POLY area;
        area.name = "area" + std::to_string(i);
        area.points = blob((i % columns + 0.5) * width / columns,
                           (i / columns + 0.5) * height / rows, radius, random);
        picture.polys.push_back(std::move(area));
    }
    return picture;
}

Oid::OidProject benchProject(const std::string& folder, const std::vector<Oid::PICTURE>& pictures,
                             const std::string& photoFile)
{
    Oid::OidProject project;
    project.projectPath = folder + "/book.oidpro";
    project.pictures = pictures;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        FileSystem::copyFileContent(photoFile, project.pathImageSource(static_cast<int>(i)));
    }
    project.redirectPrintf(printNothing);
    project.updateUsedOIDs();
    project.save(project.projectPath);
    return project;
}
