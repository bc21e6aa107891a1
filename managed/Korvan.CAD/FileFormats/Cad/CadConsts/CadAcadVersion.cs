using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The release of a drawing; $ACADVER. The value is the number of the release code.</summary>
[PythonEnum(EnumKind.Flag)]
public enum CadAcadVersion
{
    /// <summary>No release is stated.</summary>
    None = 0,

    /// <summary>Release 2.2.</summary>
    AC1001 = 1001,

    /// <summary>Release 2.5.</summary>
    AC1002 = 1002,

    /// <summary>Release 2.6.</summary>
    AC1003 = 1003,

    /// <summary>Release 9.</summary>
    AC1004 = 1004,

    /// <summary>Release 10.</summary>
    AC1006 = 1006,

    /// <summary>Releases 11 and 12.</summary>
    AC1009 = 1009,

    /// <summary>Release 13.</summary>
    AC1012 = 1012,

    /// <summary>Release 14.</summary>
    AC1014 = 1014,

    /// <summary>Releases 2000 to 2002.</summary>
    AC1015 = 1015,

    /// <summary>Releases 2004 to 2006.</summary>
    AC1018 = 1018,

    /// <summary>Releases 2007 to 2009.</summary>
    AC1021 = 1021,

    /// <summary>Releases 2010 to 2012.</summary>
    AC1024 = 1024,

    /// <summary>Releases 2013 to 2017.</summary>
    AC1027 = 1027,

    /// <summary>Releases 2018 and later.</summary>
    AC1032 = 1032,
}
