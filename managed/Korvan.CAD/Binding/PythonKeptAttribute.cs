using System;

namespace Korvan.CAD.Binding;

/// <summary>States that a stream from Python stays in use when the method has returned, until what the method made lets
/// go of it. Other arguments are lent for the call alone.</summary>
[AttributeUsage(AttributeTargets.Parameter)]
internal sealed class PythonKeptAttribute : Attribute;
