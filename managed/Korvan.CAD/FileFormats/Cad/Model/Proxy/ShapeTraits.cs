namespace Korvan.CAD.FileFormats.Cad.Model.Proxy;

/// <summary>How the shapes that follow are drawn, where that differs from the entity that they are part of.</summary>
internal readonly record struct ShapeTraits()
{
    internal const int ByEntity = -1;

    /// <summary>Gets the index of the colour: 0 by block, 256 by layer; -1 for that of the entity.</summary>
    internal int Color { get; init; } = ByEntity;

    /// <summary>Gets the colour as 0xRRGGBB, which goes before the index; -1 for none.</summary>
    internal int TrueColor { get; init; } = ByEntity;

    /// <summary>Gets the position of the layer in its table; -1 for that of the entity.</summary>
    internal int Layer { get; init; } = ByEntity;

    /// <summary>Gets the position of the line type in its table; -1 for that of the entity.</summary>
    internal int LineType { get; init; } = ByEntity;

    /// <summary>Gets the line weight in hundredths of a millimetre, or a negative value as entities have it; null for
    /// that of the entity.</summary>
    internal short? LineWeight { get; init; }

    internal double? LineTypeScale { get; init; }
}
