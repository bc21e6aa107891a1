namespace Korvan.CAD.ImageOptions;

/// <summary>Writes the faces of a drawing for 3D printing.</summary>
public class StlOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public StlOptions()
        : base(FileFormat.Stl)
    {
    }

    /// <summary>Gets or sets whether faces are written as bytes instead of words. On by default.</summary>
    public bool Binary { get; set; } = true;
}
