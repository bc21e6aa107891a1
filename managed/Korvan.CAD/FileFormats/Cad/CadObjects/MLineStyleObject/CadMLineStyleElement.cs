namespace Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;

/// <summary>A line of a multiline style.</summary>
public class CadMLineStyleElement
{
    /// <summary>Creates a line in the middle.</summary>
    public CadMLineStyleElement()
    {
    }

    /// <summary>Gets or sets the distance from the middle. Group code 49.</summary>
    public double Offset { get; set; }

    /// <summary>Gets or sets the number of the colour. Group code 62.</summary>
    public short ColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour as 0xRRGGBB; -1 for none. Group code 420.</summary>
    public int ColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the line type. Group code 6.</summary>
    public string LineTypeName { get; set; } = "BYLAYER";
}
