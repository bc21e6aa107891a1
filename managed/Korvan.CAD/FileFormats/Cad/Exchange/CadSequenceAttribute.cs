using System;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>States that files have the fields of a class in the order of its properties, so that one group code may
/// be that of several of them. A field may be missing; what does not fit the order is kept unchanged.</summary>
[AttributeUsage(AttributeTargets.Class, Inherited = false)]
internal sealed class CadSequenceAttribute : Attribute;
