using static Korvan.CAD.FileFormats.Cad.Dwg.Early.EarlyField;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>The variables in file headers, in the order of files.</summary>
internal static class EarlyHeaderFields
{
    /// <summary>The number of layers in release 1.4.</summary>
    internal const int LayerCount = 128;

    private const int UnitNameWidth = 32;

    /// <summary>The variables of release 1.4.</summary>
    internal static readonly EarlyField[] Oldest =
    [
        Named("INSBASE", Spatial(10)), new(EarlyCoding.Offset, 0), Unused(2),
        Named("EXTMIN", Spatial(10)), Named("EXTMAX", Spatial(10)), Named("LIMMIN", Plane(10)),
        Named("LIMMAX", Plane(10)), Named("VIEWCTR", Plane(10)), Unused(8), Named("VIEWSIZE", Real(40)),
        Named("SNAPMODE", Short(70)), Unused(8), Named("GRIDMODE", Short(70)), Unused(8),
        Named("ORTHOMODE", Short(70)), Named("REGENMODE", Short(70)), Named("FILLMODE", Short(70)),
        Named("TEXTSIZE", Real(40)), Named("TRACEWID", Real(40)), Named("CLAYER", new(EarlyCoding.Layer, 8)),
        Named("CECOLOR", Short(62)), new(EarlyCoding.LayerColors, 0, LayerCount), Unused(16),
        Named("LUNITS", Short(70)), Named("LUPREC", Short(70)), Unused(4), Named("AXISMODE", Short(70)),
        Named("AXISUNIT", Plane(10)), Named("SKETCHINC", Real(40)), Named("FILLETRAD", Real(40)),
    ];

    /// <summary>The variables from release 2.0 on. A header that states no more variables than a part says ends before
    /// it.</summary>
    internal static readonly (int Above, EarlyField[] Fields)[] Parts =
    [
        (0, View()), (0, Units()), (74, Direction()), (83, Style()), (101, Points()), (104, User()), (114, Alternate()),
        (120, [Named("DIMALTF", Real(40)), Named("DIMLFAC", Real(40))]), (122, Splines()), (129, Space()),
        (158, [Table("APPID"), Named("WORLDVIEW", Short(70))]), (160, Paper()),
        (204, [Named("VISRETAIN", Short(70))]),
    ];

    private static EarlyField[] View() =>
    [
        Named("INSBASE", Spatial(10)), Named("PLINEGEN", Short(70)).From(EarlyRelease.R10),
        Unused(2).UpTo(EarlyRelease.R9), Named("EXTMIN", Spatial(10)), Named("EXTMAX", Spatial(10)),
        Named("LIMMIN", Plane(10)), Named("LIMMAX", Plane(10)), Named("VIEWCTR", Plane(10)), Unused(8),
        Named("VIEWSIZE", Real(40)), Named("SNAPMODE", Short(70)), Named("SNAPUNIT", Plane(10)),
        Named("SNAPBASE", Plane(10)), Named("SNAPANG", Angle(50)), Named("SNAPSTYLE", Short(70)),
        Named("SNAPISOPAIR", Short(70)), Named("GRIDMODE", Short(70)), Named("GRIDUNIT", Plane(10)),
        Named("ORTHOMODE", Short(70)), Named("REGENMODE", Short(70)), Named("FILLMODE", Short(70)),
        Named("QTEXTMODE", Short(70)), Named("DRAGMODE", Short(70)), Named("LTSCALE", Real(40)),
        Named("TEXTSIZE", Real(40)), Named("TRACEWID", Real(40)), Named("CLAYER", new(EarlyCoding.Layer, 8)),
        Unused(10), Unused(6).UpTo(EarlyRelease.R9), Named("PSLTSCALE", Short(70)).From(EarlyRelease.R10),
        Named("TREEDEPTH", Short(70)).From(EarlyRelease.R10), Unused(2).From(EarlyRelease.R10), Unused(8),
    ];

    private static EarlyField[] Units() =>
    [
        Named("LUNITS", Short(70)), Named("LUPREC", Short(70)), Named("AXISMODE", Short(70)),
        Named("AXISUNIT", Plane(10)), Named("SKETCHINC", Real(40)), Named("FILLETRAD", Real(40)),
        Named("AUNITS", Short(70)), Named("AUPREC", Short(70)), Named("TEXTSTYLE", new(EarlyCoding.Style, 7)),
        Named("OSMODE", Short(70)), Named("ATTMODE", Short(70)), Named("MENU", Fixed(1, 15)),
        .. Reals("DIMSCALE", "DIMASZ", "DIMEXO", "DIMDLI", "DIMEXE", "DIMTP", "DIMTM", "DIMTXT", "DIMCEN", "DIMTSZ"),
        .. Bytes("DIMTOL", "DIMLIM", "DIMTIH", "DIMTOH", "DIMSE1", "DIMSE2", "DIMTAD"),
    ];

    private static EarlyField[] Direction() =>
    [
        Named("LIMCHECK", Byte(70)), Unused(1), Named("MENU", Fixed(1, 45)), Named("ELEVATION", Real(40)),
        Named("THICKNESS", Real(40)), Named("VIEWDIR", Spatial(10)), Unused(18 * sizeof(double)), Unused(2),
        Named("BLIPMODE", Short(70)),
    ];

    private static EarlyField[] Style() =>
    [
        Named("DIMZIN", Byte(70)), Named("DIMRND", Real(40)), Named("DIMDLE", Real(40)), Arrow("DIMBLK"), Unused(2),
        Named("COORDS", Short(70)), Named("CECOLOR", Short(62)), Named("CELTYPE", new(EarlyCoding.LineType, 6)),
        Named("TDCREATE", new(EarlyCoding.Date, 40)), Named("TDUPDATE", new(EarlyCoding.Date, 40)),
        Named("TDINDWG", new(EarlyCoding.Date, 40)), Named("TDUSRTIMER", new(EarlyCoding.Date, 40)),
        Named("USRTIMER", Short(70)), Named("FASTZOOM", Short(70)), Named("SKPOLY", Short(70)),
        Unused(7 * sizeof(short)), Named("ANGBASE", Angle(50)), Named("ANGDIR", Short(70)),
    ];

    private static EarlyField[] Points() =>
        [Named("PDMODE", Short(70)), Named("PDSIZE", Real(40)), Named("PLINEWID", Real(40))];

    private static EarlyField[] User() =>
    [
        .. Shorts("USERI1", "USERI2", "USERI3", "USERI4", "USERI5"),
        .. Reals("USERR1", "USERR2", "USERR3", "USERR4", "USERR5"),
    ];

    private static EarlyField[] Alternate() =>
    [
        .. Bytes("DIMALT", "DIMALTD", "DIMASO", "DIMSHO"), Named("DIMPOST", Fixed(1, 16)),
        Named("DIMAPOST", Fixed(1, 16)),
    ];

    private static EarlyField[] Splines() =>
    [
        .. Shorts("SPLINESEGS", "SPLFRAME", "ATTREQ", "ATTDIA"), .. Reals("CHAMFERA", "CHAMFERB"),
        Named("MIRRTEXT", Short(70)),
    ];

    private static EarlyField[] Space() =>
    [
        Table("UCS"), Named("DWGCODEPAGE", new(EarlyCoding.CodePage, 3)), Named("UCSORG", Spatial(10)),
        Named("UCSXDIR", Spatial(10)), Named("UCSYDIR", Spatial(10)), Unused(7 * sizeof(double)), Unused(2),
        Named("DIMTOFL", Byte(70)), Arrow("DIMBLK1"), Arrow("DIMBLK2"), .. Bytes("DIMSAH", "DIMTIX", "DIMSOXD"),
        Named("DIMTVP", Real(40)), Unused(33), Named("HANDLING", Short(70)),
        Named("HANDSEED", new(EarlyCoding.Handle, 5)),
        .. Shorts("SURFU", "SURFV", "SURFTYPE", "SURFTAB1", "SURFTAB2"), Table("VPORT"),
        .. Shorts("FLATLAND", "SPLINETYPE", "UCSICON"), Named("UCSNAME", new(EarlyCoding.CoordinateSystem, 2)),
    ];

    private static EarlyField[] Paper() =>
    [
        Unused(4), Table("DIMSTYLE"), Named("DIMSTYLE", new(EarlyCoding.DimensionStyle, 2)), Unused(3),
        .. Shorts("DIMCLRD", "DIMCLRE", "DIMCLRT", "SHADEDGE", "SHADEDIF"),
        Unused(2), Named("UNITMODE", Short(70)), Unused(4 * sizeof(double)), Unused(4 * UnitNameWidth),
        Named("DIMTFAC", Real(40)), Named("PUCSORG", Spatial(10)), Named("PUCSXDIR", Spatial(10)),
        Named("PUCSYDIR", Spatial(10)), Named("PUCSNAME", new(EarlyCoding.CoordinateSystem, 2)),
        .. Shorts("TILEMODE", "PLIMCHECK"), Unused(2), Named("PEXTMIN", Spatial(10)), Named("PEXTMAX", Spatial(10)),
        Named("PLIMMIN", Plane(10)), Named("PLIMMAX", Plane(10)), Named("PINSBASE", Spatial(10)), Table("VX"),
        Named("MAXACTVP", Short(70)), .. Reals("DIMGAP", "PELEVATION"),
    ];

    private static EarlyField Named(string name, EarlyField field) => field with { Name = name };

    private static EarlyField Table(string name) => new(EarlyCoding.Table, 0) { Name = name };

    private static EarlyField Arrow(string name) => Named(name, Fixed(1, 33));

    private static EarlyField[] Reals(params string[] names) => [.. System.Array.ConvertAll(
        names, static name => Named(name, Real(40)))];

    private static EarlyField[] Shorts(params string[] names) => [.. System.Array.ConvertAll(
        names, static name => Named(name, Short(70)))];

    private static EarlyField[] Bytes(params string[] names) => [.. System.Array.ConvertAll(
        names, static name => Named(name, Byte(70)))];
}
