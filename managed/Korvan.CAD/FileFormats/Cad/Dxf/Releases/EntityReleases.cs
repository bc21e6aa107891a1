using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>The releases that types of entities came with, as years.</summary>
internal static class EntityReleases
{
    // The others, and types that programs add, need the class descriptions of release 13.
    private const int Other = 1994;

    private static readonly Dictionary<string, int> Years = Table(
        (0, "3DFACE ARC ATTDEF ATTRIB CIRCLE DIMENSION INSERT LINE POINT POLYLINE SEQEND SHAPE SOLID TEXT"),
        (0, "TRACE VERTEX VIEWPORT"),
        (1997, "ACAD_PROXY_ENTITY HATCH IMAGE LWPOLYLINE OLE2FRAME"),
        (2000, "ARCALIGNEDTEXT MPOLYGON RTEXT WIPEOUT"),
        (2004, "ACAD_TABLE ARC_DIMENSION LARGE_RADIAL_DIMENSION"),
        (2007, "CAMERA DGNUNDERLAY DWFUNDERLAY EXTRUDEDSURFACE HELIX LIGHT LOFTEDSURFACE MULTILEADER PLANESURFACE"),
        (2007, "REVOLVEDSURFACE SECTION SUN SURFACE SWEPTSURFACE"),
        (2010, "MESH NURBSURFACE PDFUNDERLAY POINTCLOUD"),
        (2013, "GEOPOSITIONMARKER POINTCLOUDEX"));

    internal static int Since(string type) => Years.GetValueOrDefault(type, Other);

    private static Dictionary<string, int> Table(params (int Year, string Types)[] rows)
    {
        Dictionary<string, int> years = new(StringComparer.OrdinalIgnoreCase);
        foreach ((int year, string types) in rows)
        {
            foreach (string type in types.Split(' '))
            {
                years.Add(type, year);
            }
        }

        return years;
    }
}
