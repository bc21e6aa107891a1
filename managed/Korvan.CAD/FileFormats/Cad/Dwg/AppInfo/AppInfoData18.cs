namespace Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;

/// <summary>The program that wrote a drawing database, in the form of release 2004.</summary>
public class AppInfoData18 : AppInfoData
{
    internal AppInfoData18()
    {
    }

    /// <summary>Gets the number of the form; 2.</summary>
    public int Form { get; internal set; } = 2;

    /// <summary>Gets the code of the program, as in 4001.</summary>
    public string Code { get; internal set; } = "";
}
