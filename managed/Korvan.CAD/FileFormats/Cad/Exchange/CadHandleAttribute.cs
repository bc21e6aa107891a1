namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that a property is the handle of another object, in hexadecimal; the range of the group code tells
/// its <see cref="HandleRole"/>.</summary>
/// <param name="code">The group code.</param>
internal sealed class CadHandleAttribute(int code) : CadPropertyAttribute(code);
