namespace Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;

/// <summary>The program that wrote a drawing database. Source: Open Design Specification for .dwg files, 5.4.1, chapter
/// 16.</summary>
public abstract class AppInfoData
{
    internal AppInfoData()
    {
    }

    /// <summary>Gets the name of the list, AppInfoDataList.</summary>
    public string Name { get; internal set; } = "AppInfoDataList";

    /// <summary>Gets the version of the program.</summary>
    public string Version { get; internal set; } = "";

    /// <summary>Gets the product: an XML element.</summary>
    public string Product { get; internal set; } = "";
}
