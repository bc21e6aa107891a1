namespace Korvan.CAD.ImageOptions;

/// <summary>Says how a published drawing is written.</summary>
public class DwfOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public DwfOptions()
        : base(FileFormat.Dwf)
    {
    }

    /// <summary>Gets or sets whether the content is packed. On by default.</summary>
    public bool Compressed { get; set; } = true;
}
