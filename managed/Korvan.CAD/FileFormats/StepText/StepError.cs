namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Damage in a file.</summary>
/// <param name="Offset">Where it is, in bytes from the start.</param>
/// <param name="Id">The instance that it is in; 0 outside of all.</param>
/// <param name="Message">What is wrong.</param>
internal readonly record struct StepError(int Offset, long Id, string Message);
