namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a property is an angle in degrees.</summary>
/// <param name="code">The group code.</param>
internal sealed class CadAngleAttribute(int code) : CadPropertyAttribute(code);
