namespace Korvan.CAD.FileFormats.Cad.CadConsts;

/// <summary>The names that files have for symbol tables.</summary>
public static class CadTableNames
{
    /// <summary>Gets the table of the programs that attached data.</summary>
    public static string ApplicationIds => "APPID";

    /// <summary>Gets the table of block records.</summary>
    public static string BlockRecords => "BLOCK_RECORD";

    /// <summary>Gets the table of dimension styles.</summary>
    public static string DimensionStyles => "DIMSTYLE";

    /// <summary>Gets the table of layers.</summary>
    public static string Layers => "LAYER";

    /// <summary>Gets the table of line types.</summary>
    public static string LineTypes => "LTYPE";

    /// <summary>Gets the table of text styles.</summary>
    public static string TextStyles => "STYLE";

    /// <summary>Gets the table of coordinate systems.</summary>
    public static string CoordinateSystems => "UCS";

    /// <summary>Gets the table of views.</summary>
    public static string Views => "VIEW";

    /// <summary>Gets the table of viewports.</summary>
    public static string Viewports => "VPORT";
}
