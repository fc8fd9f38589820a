#pragma once

#include <QByteArray>

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "oid/OidProject.h"

// An area for as long as the document lives: unlike its index it stays when other areas come and
// go, and comes back when the area does.
enum class AreaId : std::uint64_t { none = 0 };

// What can be done to the pages and areas of a document, each as one value. Pages are counted from
// 0; points are in percent of the picture's width.
namespace edit {

// A new area; index says its place among the areas of its page, -1 is behind the last. Areas
// without a number get one, this and all others.
struct AddArea
{
    int page = 0;
    Oid::POLY area;
    int index = -1;
};

// The name keeps its number, so that an area of the same name gets it back.
struct RemoveArea
{
    AreaId area = AreaId::none;
};

struct SetCorners
{
    AreaId area = AreaId::none;
    std::vector<Oid::PNT> corners;
};

// All corners by the same way. They come to lie on a grid far finer than any printer's.
struct MoveAreas
{
    std::vector<AreaId> areas;
    Oid::PNT by;
};

// The number goes along with the name.
struct RenameArea
{
    AreaId area = AreaId::none;
    std::string name;
};

// Areas of one name get another one. The number goes along, and those that bear the new name
// already share it.
struct RenameAreas
{
    std::vector<AreaId> areas;
    std::string name;
};

// The number of all areas that bear this one's name.
struct SetNumber
{
    AreaId area = AreaId::none;
    int oid = 0;
};

// To another place among the areas of its page: the first in the list wins where areas overlap.
struct ReorderArea
{
    AreaId area = AreaId::none;
    int index = 0;
};

struct SetPaper
{
    int page = 0;
    double width = 0;   // mm
    double height = 0;  // mm
    int dpi = 0;
};

// A page behind the last one; file is what its picture file shall hold, nothing when there is none.
struct AddPage
{
    Oid::PICTURE page;
    QByteArray file;
};

// The page goes with its areas and its picture; those behind it move up. The numbers stay with the
// names, so that areas of the same name get them back.
struct RemovePage
{
    int page = 0;
};

// To another place among the pages, with its areas and its picture.
struct MovePage
{
    int page = 0;
    int to = 0;  // where it stands afterwards
};

// Another picture file for a page; its areas, paper and resolution stay.
struct ReplacePicture
{
    int page = 0;
    QByteArray file;
};

}  // namespace edit

using Edit = std::variant<edit::AddArea, edit::RemoveArea, edit::SetCorners, edit::MoveAreas,
                          edit::RenameArea, edit::RenameAreas, edit::SetNumber, edit::ReorderArea,
                          edit::SetPaper, edit::AddPage, edit::RemovePage, edit::MovePage,
                          edit::ReplacePicture>;
