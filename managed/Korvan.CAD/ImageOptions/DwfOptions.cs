namespace Korvan.CAD.ImageOptions;

/// <summary>Options for a published drawing.</summary>
public class DwfOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public DwfOptions()
        : base(FileFormat.Dwf)
    {
    }

    /// <summary>Gets or sets whether the content is compressed. On by default.</summary>
    public bool Compressed { get; set; } = true;
}
