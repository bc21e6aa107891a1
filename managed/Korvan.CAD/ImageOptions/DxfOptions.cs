namespace Korvan.CAD.ImageOptions;

/// <summary>Options for drawing interchange files (DXF).</summary>
public class DxfOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public DxfOptions()
        : base(FileFormat.DxfCadR2013)
    {
    }

    /// <summary>Gets or sets the release that is written. By default that of the drawing; drawings of release 2000 and
    /// later can be written in any of these releases.</summary>
    public DxfOutputVersion Version { get; set; } = DxfOutputVersion.Original;
}
