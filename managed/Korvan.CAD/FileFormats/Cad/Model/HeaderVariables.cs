using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The releases that variables came with.</summary>
internal static class HeaderVariables
{
    private static readonly HashSet<string> Since2004 =
    [
        "$SORTENTS", "$INDEXCTL", "$HIDETEXT", "$XCLIPFRAME", "$HALOGAP", "$OBSCOLOR", "$OBSLTYPE",
        "$INTERSECTIONDISPLAY", "$INTERSECTIONCOLOR", "$DIMASSOC", "$PROJECTNAME", "$LASTSAVEDBY",
    ];

    private static readonly HashSet<string> Since2007 =
    [
        "$CAMERADISPLAY", "$LENSLENGTH", "$CAMERAHEIGHT", "$STEPSPERSEC", "$STEPSIZE", "$3DDWFPREC", "$PSOLWIDTH",
        "$PSOLHEIGHT", "$LOFTANG1", "$LOFTANG2", "$LOFTMAG1", "$LOFTMAG2", "$LOFTPARAM", "$LOFTNORMALS", "$LATITUDE",
        "$LONGITUDE", "$NORTHDIRECTION", "$TIMEZONE", "$LIGHTGLYPHDISPLAY", "$TILEMODELIGHTSYNCH", "$CMATERIAL",
        "$SOLIDHIST", "$SHOWHIST", "$DWFFRAME", "$DGNFRAME", "$REALWORLDSCALE", "$INTERFERECOLOR", "$INTERFEREOBJVS",
        "$INTERFEREVPVS", "$CSHADOW", "$SHADOWPLANELOCATION", "$DIMFXL", "$DIMFXLON", "$DIMJOGANG", "$DIMTFILL",
        "$DIMTFILLCLR", "$DIMARCSYM", "$DIMLTYPE", "$DIMLTEX1", "$DIMLTEX2",
    ];

    private static readonly HashSet<string> Since2010 = ["$DIMTXTDIRECTION"];

    private static readonly HashSet<string> Release12 = Names(
        "ACADVER", "ANGBASE", "ANGDIR", "ATTDIA", "ATTMODE", "ATTREQ", "AUNITS", "AUPREC", "AXISMODE", "AXISUNIT",
        "BLIPMODE", "CECOLOR", "CELTYPE", "CHAMFERA", "CHAMFERB", "CLAYER", "COORDS", "DIMALT", "DIMALTD", "DIMALTF",
        "DIMAPOST", "DIMASO", "DIMASZ", "DIMBLK", "DIMBLK1", "DIMBLK2", "DIMCEN", "DIMCLRD", "DIMCLRE", "DIMCLRT",
        "DIMDLE", "DIMDLI", "DIMEXE", "DIMEXO", "DIMGAP", "DIMLFAC", "DIMLIM", "DIMPOST", "DIMRND", "DIMSAH",
        "DIMSCALE", "DIMSE1", "DIMSE2", "DIMSHO", "DIMSOXD", "DIMSTYLE", "DIMTAD", "DIMTFAC", "DIMTIH", "DIMTIX",
        "DIMTM", "DIMTOFL", "DIMTOH", "DIMTOL", "DIMTP", "DIMTSZ", "DIMTVP", "DIMTXT", "DIMZIN", "DRAGMODE",
        "DWGCODEPAGE", "ELEVATION", "EXTMAX", "EXTMIN", "FILLETRAD", "FILLMODE", "HANDLING", "HANDSEED", "INSBASE",
        "LIMCHECK", "LIMMAX", "LIMMIN", "LTSCALE", "LUNITS", "LUPREC", "MAXACTVP", "MENU", "MIRRTEXT", "ORTHOMODE",
        "OSMODE", "PDMODE", "PDSIZE", "PELEVATION", "PEXTMAX", "PEXTMIN", "PLIMCHECK", "PLIMMAX", "PLIMMIN",
        "PLINEGEN", "PLINEWID", "PSLTSCALE", "PUCSNAME", "PUCSORG", "PUCSXDIR", "PUCSYDIR", "QTEXTMODE", "REGENMODE",
        "SHADEDGE", "SHADEDIF", "SKETCHINC", "SKPOLY", "SPLFRAME", "SPLINESEGS", "SPLINETYPE", "SURFTAB1", "SURFTAB2",
        "SURFTYPE", "SURFU", "SURFV", "TDCREATE", "TDINDWG", "TDUPDATE", "TDUSRTIMER", "TEXTSIZE", "TEXTSTYLE",
        "THICKNESS", "TILEMODE", "TRACEWID", "UCSNAME", "UCSORG", "UCSXDIR", "UCSYDIR", "UNITMODE", "USERI1",
        "USERI2", "USERI3", "USERI4", "USERI5", "USERR1", "USERR2", "USERR3", "USERR4", "USERR5", "USRTIMER",
        "VISRETAIN", "WORLDVIEW");

    // What release 2000 no longer has: settings of the program, and those of the view, which the tables have.
    private static readonly HashSet<string> Until1997 = Names(
        "ATTDIA", "ATTREQ", "AXISMODE", "AXISUNIT", "BLIPMODE", "COORDS", "DELOBJ", "DIMFIT", "DIMUNIT", "DRAGMODE",
        "FASTZOOM", "GRIDMODE", "GRIDUNIT", "HANDLING", "OSMODE", "PICKSTYLE", "SAVEIMAGES", "SNAPANG", "SNAPBASE",
        "SNAPISOPAIR", "SNAPMODE", "SNAPSTYLE", "SNAPUNIT", "VIEWCTR", "VIEWDIR", "VIEWSIZE", "VIEWTWIST", "VPOINTALT",
        "VPOINTX", "VPOINTY", "VPOINTZ");

    /// <summary>The group code of the names of arrow blocks from release 13 on.</summary>
    internal const int ArrowCode = 1;

    /// <summary>The group code of the names of arrow blocks in release 12.</summary>
    internal const int OldArrowCode = 2;

    internal static bool IsInRelease12(string name) => Release12.Contains(name);

    /// <summary>Gets the year of the last release that has a variable.</summary>
    internal static int Until(string name) => Until1997.Contains(name) ? 1997 : int.MaxValue;

    /// <summary>Gives the names of arrow blocks the group code of a release.</summary>
    internal static void SetArrowCode(CadHeader header, int code)
    {
        foreach (string name in new[] { "$DIMBLK", "$DIMBLK1", "$DIMBLK2" })
        {
            if (header.Contains(name))
            {
                header.TagsOf(name).ForEach(tag => tag.Attribute = code);
            }
        }
    }

    private static HashSet<string> Names(params string[] names) =>
        new(System.Array.ConvertAll(names, static name => "$" + name), System.StringComparer.OrdinalIgnoreCase);

    /// <summary>Gives the year of the release that a variable came with, or 0 where releases from 2000 on have
    /// it.</summary>
    internal static int Since(string name) => name switch
    {
        _ when Since2004.Contains(name) => 2004,
        _ when Since2007.Contains(name) => 2007,
        _ when Since2010.Contains(name) => 2010,
        _ => 0,
    };
}
