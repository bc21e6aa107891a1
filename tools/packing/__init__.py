"""The steps of tools/make_wheel.py."""
