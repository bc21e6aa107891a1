namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a property is the name of a record of a symbol table.</summary>
/// <param name="code">The group code.</param>
/// <param name="table">The table.</param>
internal sealed class CadNameAttribute(int code, SymbolTable table) : CadPropertyAttribute(code)
{
    /// <summary>Gets the table.</summary>
    internal SymbolTable Table { get; } = table;
}
