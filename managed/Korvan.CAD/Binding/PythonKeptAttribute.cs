using System;

namespace Korvan.CAD.Binding;

/// <summary>States that a stream from Python stays in use after the method has returned, until the created object
/// releases it. Other arguments are borrowed for the call only.</summary>
[AttributeUsage(AttributeTargets.Parameter)]
internal sealed class PythonKeptAttribute : Attribute;
