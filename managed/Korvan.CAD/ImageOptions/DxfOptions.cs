namespace Korvan.CAD.ImageOptions;

/// <summary>Options for drawing interchange files (DXF).</summary>
public class DxfOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public DxfOptions()
        : base(FileFormat.DxfCadR2013)
    {
    }

    /// <summary>Gets or sets the release that is written; by default that of the drawing. What a release does not have
    /// is converted in the file, not in the drawing: for R12, splines and ellipses become polylines within a
    /// ten-thousandth of their size, paragraphs become lines of text and hatches become blocks, true colours become the
    /// nearest index before R2004. What has no equivalent is left out. Both are listed in
    /// <see cref="ImageOptionsBase.RenderResult"/>. A drawing that was loaded from a binary file is saved as
    /// one.</summary>
    public DxfOutputVersion Version { get; set; } = DxfOutputVersion.Original;
}
