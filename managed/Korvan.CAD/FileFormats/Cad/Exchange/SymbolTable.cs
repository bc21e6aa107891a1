namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>The symbol table that the name of a record belongs to. Text formats state the name, others its
/// handle.</summary>
internal enum SymbolTable
{
    /// <summary>Layers.</summary>
    Layer,

    /// <summary>Line types.</summary>
    LineType,

    /// <summary>Text styles.</summary>
    Style,

    /// <summary>Dimension styles.</summary>
    DimensionStyle,

    /// <summary>Block records.</summary>
    BlockRecord,

    /// <summary>Named views.</summary>
    View,
}
