using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>The releases that types of entities came with, as years.</summary>
internal static class EntityReleases
{
    private static readonly Dictionary<string, int> Years = new(StringComparer.OrdinalIgnoreCase)
    {
        ["3DFACE"] = 0, ["ARC"] = 0, ["ATTDEF"] = 0, ["ATTRIB"] = 0, ["CIRCLE"] = 0, ["DIMENSION"] = 0, ["INSERT"] = 0,
        ["LINE"] = 0, ["POINT"] = 0, ["POLYLINE"] = 0, ["SEQEND"] = 0, ["SHAPE"] = 0, ["SOLID"] = 0, ["TEXT"] = 0,
        ["TRACE"] = 0, ["VERTEX"] = 0, ["VIEWPORT"] = 0,
        ["ACAD_PROXY_ENTITY"] = 1997, ["HATCH"] = 1997, ["IMAGE"] = 1997, ["LWPOLYLINE"] = 1997, ["OLE2FRAME"] = 1997,
        ["ARCALIGNEDTEXT"] = 2000, ["MPOLYGON"] = 2000, ["RTEXT"] = 2000, ["WIPEOUT"] = 2000,
        ["ACAD_TABLE"] = 2004, ["ARC_DIMENSION"] = 2004, ["LARGE_RADIAL_DIMENSION"] = 2004,
        ["CAMERA"] = 2007, ["DGNUNDERLAY"] = 2007, ["DWFUNDERLAY"] = 2007, ["EXTRUDEDSURFACE"] = 2007,
        ["HELIX"] = 2007, ["LIGHT"] = 2007, ["LOFTEDSURFACE"] = 2007, ["MULTILEADER"] = 2007, ["PLANESURFACE"] = 2007,
        ["REVOLVEDSURFACE"] = 2007, ["SECTION"] = 2007, ["SUN"] = 2007, ["SURFACE"] = 2007, ["SWEPTSURFACE"] = 2007,
        ["MESH"] = 2010, ["NURBSURFACE"] = 2010, ["PDFUNDERLAY"] = 2010, ["POINTCLOUD"] = 2010,
        ["GEOPOSITIONMARKER"] = 2013, ["POINTCLOUDEX"] = 2013,
    };

    // The others, and types that programs add, need the class descriptions of release 13.
    private const int Other = 1994;

    internal static int Since(string type) => Years.GetValueOrDefault(type, Other);
}
