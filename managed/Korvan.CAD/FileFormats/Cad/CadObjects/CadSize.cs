namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A width and a height.</summary>
public sealed class CadSize
{
    /// <summary>Creates a size of 0 by 0.</summary>
    public CadSize()
    {
    }

    /// <summary>Creates a size.</summary>
    /// <param name="width">The width.</param>
    /// <param name="height">The height.</param>
    public CadSize(double width, double height)
    {
        Width = width;
        Height = height;
    }

    /// <summary>Gets or sets the width.</summary>
    public double Width { get; set; }

    /// <summary>Gets or sets the height.</summary>
    public double Height { get; set; }

    /// <inheritdoc/>
    public override string ToString() => System.FormattableString.Invariant($"{Width} x {Height}");
}
