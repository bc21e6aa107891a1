namespace Korvan.CAD.ImageOptions;

/// <summary>Writes a drawing interchange file.</summary>
public class DxfOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public DxfOptions()
        : base(FileFormat.DxfCadR2013)
    {
    }

    /// <summary>Gets or sets the release that is written. By default the one that the drawing has; drawings of
    /// release 2000 and later can be written as any of these releases.</summary>
    public DxfOutputVersion Version { get; set; } = DxfOutputVersion.Original;
}
