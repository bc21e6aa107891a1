namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a property is the index of a colour, of 16 bits.</summary>
/// <param name="code">The group code.</param>
internal sealed class CadColorAttribute(int code) : CadPropertyAttribute(code);
