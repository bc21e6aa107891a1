namespace Korvan.CAD.FileFormats.Cad.Dwg.AppInfo;

/// <summary>The program that wrote a drawing database, in the form of releases from 2007 on.</summary>
public class AppInfoData21 : AppInfoData
{
    internal AppInfoData21()
    {
    }

    /// <summary>Gets the number of the form; 2 or 3.</summary>
    public int Form { get; internal set; } = 2;

    /// <summary>Gets a statement of the program about the file.</summary>
    public string Comment { get; internal set; } = "";

    /// <summary>Gets the 16 bytes before the version: an identifier or zeros.</summary>
    public byte[] VersionData { get; internal set; } = new byte[16];

    /// <summary>Gets the 16 bytes before the comment: an identifier or zeros.</summary>
    public byte[] CommentData { get; internal set; } = new byte[16];

    /// <summary>Gets the 16 bytes before the product: an identifier or zeros.</summary>
    public byte[] ProductData { get; internal set; } = new byte[16];
}
