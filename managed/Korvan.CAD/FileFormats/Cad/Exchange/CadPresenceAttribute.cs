namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a property tells whether fields follow; text files show it by the fields alone.</summary>
internal sealed class CadPresenceAttribute() : CadPropertyAttribute(0);
