namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a property is a part of the object, with fields of its own.</summary>
internal sealed class CadPartAttribute() : CadPropertyAttribute(0);
